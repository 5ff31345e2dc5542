// The way of a reader through help files: what is shown, what links and macros lead to, and the way back. Only jumps,
// pop-ups, the history, the browse sequence and closing are carried out: a macro that would start a program, call a
// library or write is kept as text to be told of.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quickhelp/topics/help_file.h"
#include "quickhelp/topics/help_macro.h"
#include "quickhelp/topics/topic.h"

namespace vexa::topics {

struct ShownTopic {
    std::shared_ptr<const HelpFile> file;
    std::string path;
    std::uint32_t offset = 0;  // what was asked for, which may lie in the middle of the topic
    Topic topic;
};

struct FoundTopic {
    std::uint32_t offset = 0;
    std::string title;
};

// What the window does next. A choice is one among found().
enum class BrowserOutcome { Nothing, Show, PopUp, Index, Choice, Close };

// How a macro names a context.
enum class ContextKind { Name, Hash, Number };

class HelpBrowser {
  public:
    static constexpr std::size_t kLongestHistory = 200;

    // Gives the path of the help file that a link names, seen from the file with the link; none when there is none.
    using FindFile = std::function<std::optional<std::string>(const std::string& name, const std::string& from)>;
    explicit HelpBrowser(FindFile findFile) : findFile_(std::move(findFile)) {}

    // Each reads the file anew. A failure leaves all as it was.
    BrowserOutcome openContents(const std::string& path);
    // At a topic by the number that programs use, at the contents for an unknown one.
    BrowserOutcome openNumber(const std::string& path, std::int32_t number);
    // At the first keyword that is the given one, else at the first that begins with it, letter case ignored; the index
    // when there is none. A keyword of several topics leaves the choice.
    BrowserOutcome openKeyword(const std::string& path, std::string_view keyword);

    // The link of a topic that is shown, in the window or in the pop-up.
    BrowserOutcome follow(const ShownTopic& from, const Link& link);
    // To a place of the file that is shown.
    BrowserOutcome goTo(std::uint32_t offset);
    BrowserOutcome toContents();
    BrowserOutcome back();
    BrowserOutcome previous();
    BrowserOutcome next();
    // The topics of a keyword of the file that is shown: goes there, or leaves the choice.
    BrowserOutcome showKeyword(const Keyword& keyword, char letter = 'K');

    // Null before the first file is open.
    const ShownTopic* current() const { return current_.file ? &current_ : nullptr; }
    // Valid after the outcome PopUp.
    const ShownTopic& popUp() const { return popUp_; }
    const std::vector<FoundTopic>& found() const { return found_; }
    bool canGoBack() const { return !history_.empty(); }
    bool canGoPrevious() const { return current_.topic.previous.has_value(); }
    bool canGoNext() const { return current_.topic.next.has_value(); }
    // The macros of the file, the topic and the links that were not carried out, since the last call.
    std::vector<std::string> takeRefused() { return std::exchange(refused_, {}); }

  private:
    struct Visit {
        std::shared_ptr<const HelpFile> file;
        std::string path;
        std::uint32_t offset;
    };
    friend struct MacroTable;  // the macros that are carried out

    std::shared_ptr<const HelpFile> fileOfName(const ShownTopic& from, const std::string& name,
                                               std::string& path) const;
    BrowserOutcome visit(std::shared_ptr<const HelpFile> file, std::string path, std::optional<std::uint32_t> offset);
    BrowserOutcome show(std::shared_ptr<const HelpFile> file, std::string path, std::uint32_t offset);
    BrowserOutcome showPopUp(std::shared_ptr<const HelpFile> file, std::string path, std::uint32_t offset);
    BrowserOutcome showFound();
    BrowserOutcome run(const ShownTopic& from, const std::string& macro);
    BrowserOutcome leadTo(const ShownTopic& from, const MacroCall& call, LinkAction action, ContextKind context);
    BrowserOutcome showKeywords(const MacroCall& call, char letter);
    void addFound(std::string_view keyword, char letter);
    void addFound(const Keyword& keyword, char letter);
    void refuseUnsafe(const std::vector<std::string>& macros);

    FindFile findFile_;
    ShownTopic current_;
    ShownTopic popUp_;
    std::vector<Visit> history_;
    std::vector<FoundTopic> found_;
    std::vector<std::string> refused_;
};

}  // namespace vexa::topics

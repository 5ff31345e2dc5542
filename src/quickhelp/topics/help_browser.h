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

// Where a topic is to be shown, and from which height on.
struct TopicPlace {
    std::shared_ptr<const HelpFile> file;
    std::string path;
    std::uint32_t offset = 0;  // may lie in the middle of a topic
    int window = -1;           // of those that the file's author has defined
    int scroll = -1;           // pixels; where the offset leads to if it is below 0
};

struct ShownTopic : TopicPlace {
    std::shared_ptr<const Topic> topic;

    // Of the window: what the author or the file calls it, and the topic's title.
    std::string caption() const;
    // What the author wants behind the fixed part and behind the one that scrolls.
    std::optional<Colour> background(bool isFixed) const;
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

    // Each reads the file, unless it is the one that is shown and has not changed since. A failure leaves all as it
    // was.
    BrowserOutcome openContents(const std::string& path);
    // At a topic by the number that programs use, at the contents for an unknown one.
    BrowserOutcome openNumber(const std::string& path, std::int32_t number);
    // At the first keyword that is the given one, else at the first that begins with it, letter case ignored; the index
    // when there is none. A keyword of several topics leaves the choice.
    BrowserOutcome openKeyword(const std::string& path, std::string_view keyword);

    // The link of a topic that is shown, in the window or in the pop-up.
    BrowserOutcome follow(const ShownTopic& from, const Link& link);
    // To a position of the file that is shown.
    BrowserOutcome goTo(std::uint32_t offset);
    BrowserOutcome toContents();
    BrowserOutcome back();
    BrowserOutcome previous();
    BrowserOutcome next();
    // The topics of a keyword of the file that is shown: goes there, or leaves the choice.
    BrowserOutcome showKeyword(const Keyword& keyword, char letter = 'K');

    // How far the topic has been scrolled, for coming back to it.
    void keepScroll(int scroll) { current_.scroll = scroll; }

    // Null before the first file is open.
    const ShownTopic* current() const { return current_.file ? &current_ : nullptr; }
    // Valid after the outcome PopUp.
    const ShownTopic& popUp() const { return popUp_; }
    const std::vector<FoundTopic>& found() const { return found_; }
    bool canGoBack() const { return !history_.empty(); }
    bool canGoPrevious() const { return current_.topic && current_.topic->previous; }
    bool canGoNext() const { return current_.topic && current_.topic->next; }
    // The macros of the file, the topic and the links that were not carried out, since the last call.
    std::vector<std::string> takeRefused() { return std::exchange(refused_, {}); }

  private:
    friend struct MacroTable;  // the macros that are carried out

    TopicPlace placeIn(const ShownTopic& from, std::string_view name, std::string_view window) const;
    std::shared_ptr<const HelpFile> fileAt(const std::string& path) const;
    BrowserOutcome open(const std::string& path, const std::shared_ptr<const HelpFile>& file,
                        std::optional<std::uint32_t> offset);
    BrowserOutcome lead(TopicPlace& place, const std::optional<std::uint32_t>& offset, LinkAction action);
    BrowserOutcome visit(const TopicPlace& place);
    BrowserOutcome show(const TopicPlace& place);
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
    std::vector<TopicPlace> history_;
    std::vector<FoundTopic> found_;
    std::vector<std::string> refused_;
};

}  // namespace vexa::topics

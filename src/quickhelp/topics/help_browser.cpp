#include "quickhelp/topics/help_browser.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/ascii.h"

namespace vexa::topics {
namespace {

constexpr std::size_t kMostRefused = 50;
constexpr std::size_t kMostFound = 1000;

// What starts programs, calls libraries or writes. Other macros that are not carried out only dress the viewer.
constexpr std::string_view kUnsafe[] = {
    "ExecProgram",  "EP",    "ExecFile",  "EF", "RegisterRoutine", "RR",         "ShellExecute",   "SE",
    "ControlPanel", "CP",    "ShortCut",  "SH", "TCard",           "TC",         "Annotate",       "FileOpen",
    "FO",           "Print", "CopyTopic", "CT", "SaveMark",        "DeleteMark", "BookmarkDefine", "SetHelpOnFile",
    "Generate",     "Test",
};

bool IsUnsafe(const MacroCall& call) {
    return std::ranges::any_of(kUnsafe, [&](std::string_view name) { return EqualIgnoringCase(name, call.name); });
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() && EqualIgnoringCase(text.substr(0, beginning.size()), beginning);
}

std::optional<Keyword> BestKeyword(const std::vector<Keyword>& keywords, std::string_view wanted) {
    std::optional<Keyword> best;
    for (const Keyword& keyword : keywords) {
        if (EqualIgnoringCase(keyword.text, wanted)) return keyword;
        if (!best && BeginsWith(keyword.text, wanted)) best = keyword;
    }
    return best;
}

// "FILE.HLP>window" names a window too.
std::string FileNameOf(const std::string& argument) {
    return std::string(TrimBlanks(std::string_view(argument).substr(0, argument.find('>'))));
}

// Decimal or, behind "0x", hexadecimal.
std::int32_t NumberOf(std::string_view text) {
    const bool isHexadecimal = BeginsWith(text, "0x");
    if (isHexadecimal) text.remove_prefix(2);
    std::uint32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, isHexadecimal ? 16 : 10);
    return static_cast<std::int32_t>(number);
}

std::optional<std::uint32_t> OffsetOf(const HelpIndex& index, const std::string& context, ContextKind kind) {
    switch (kind) {
        case ContextKind::Name:
            return index.offsetOfContext(HashOfContext(context));
        case ContextKind::Hash:
            return index.offsetOfContext(NumberOf(context));
        case ContextKind::Number:
            return index.offsetOfNumber(NumberOf(context));
    }
    return std::nullopt;
}

std::shared_ptr<const HelpFile> Read(const std::string& path) {
    return HelpFile::openPath(path);
}

std::vector<std::string> Words(const std::string& list) {
    std::vector<std::string> words;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(';', start), list.size());
        words.emplace_back(TrimBlanks(std::string_view(list).substr(start, end - start)));
        start = end + 1;
    }
    return words;
}

}  // namespace

struct MacroTable {
    using Run = BrowserOutcome (*)(HelpBrowser&, const ShownTopic&, const MacroCall&);
    struct Row {
        std::string_view name;
        std::string_view shortName;
        Run run;
    };

    static BrowserOutcome index(HelpBrowser&, const ShownTopic&, const MacroCall&) { return BrowserOutcome::Index; }
    static BrowserOutcome close(HelpBrowser&, const ShownTopic&, const MacroCall&) { return BrowserOutcome::Close; }
    static BrowserOutcome contents(HelpBrowser& browser, const ShownTopic&, const MacroCall&) {
        return browser.toContents();
    }
    static BrowserOutcome back(HelpBrowser& browser, const ShownTopic&, const MacroCall&) { return browser.back(); }
    static BrowserOutcome next(HelpBrowser& browser, const ShownTopic&, const MacroCall&) { return browser.next(); }
    static BrowserOutcome previous(HelpBrowser& browser, const ShownTopic&, const MacroCall&) {
        return browser.previous();
    }
    template <LinkAction kAction, ContextKind kContext>
    static BrowserOutcome lead(HelpBrowser& browser, const ShownTopic& from, const MacroCall& call) {
        return browser.leadTo(from, call, kAction, kContext);
    }
    template <char kLetter>
    static BrowserOutcome keywords(HelpBrowser& browser, const ShownTopic&, const MacroCall& call) {
        return browser.showKeywords(call, kLetter);
    }

    static constexpr Row kRows[] = {
        {"Contents", "", &contents},
        {"JumpContents", "", &contents},
        {"Search", "", &index},
        {"Finder", "FD", &index},
        {"Back", "", &back},
        {"Next", "", &next},
        {"Prev", "", &previous},
        {"Exit", "", &close},
        {"CloseWindow", "CW", &close},
        {"JumpId", "JI", &lead<LinkAction::Jump, ContextKind::Name>},
        {"PopupId", "PI", &lead<LinkAction::PopUp, ContextKind::Name>},
        {"JumpHash", "JH", &lead<LinkAction::Jump, ContextKind::Hash>},
        {"PopupHash", "PH", &lead<LinkAction::PopUp, ContextKind::Hash>},
        {"JumpContext", "JC", &lead<LinkAction::Jump, ContextKind::Number>},
        {"PopupContext", "PC", &lead<LinkAction::PopUp, ContextKind::Number>},
        {"ALink", "AL", &keywords<'A'>},
        {"KLink", "KL", &keywords<'K'>},
    };

    static const Row* find(const std::string& name) {
        const auto has = [&](const Row& row) {
            return EqualIgnoringCase(row.name, name) || EqualIgnoringCase(row.shortName, name);
        };
        const auto found = std::ranges::find_if(kRows, has);
        return found == std::end(kRows) ? nullptr : found;
    }
};

// ---- opening -----------------------------------------------------------------------------------------------------

BrowserOutcome HelpBrowser::openContents(const std::string& path) {
    auto file = Read(path);
    if (!file) return BrowserOutcome::Nothing;
    const auto topic = file->contentsTopic();
    return visit(file, path, topic ? std::optional(file->topicOffset(*topic)) : std::nullopt);
}

BrowserOutcome HelpBrowser::openNumber(const std::string& path, std::int32_t number) {
    auto file = Read(path);
    if (!file) return BrowserOutcome::Nothing;
    const auto offset = file->index().offsetOfNumber(number);
    return offset ? visit(file, path, offset) : openContents(path);
}

BrowserOutcome HelpBrowser::openKeyword(const std::string& path, std::string_view keyword) {
    if (openContents(path) == BrowserOutcome::Nothing) return BrowserOutcome::Nothing;
    const auto best = BestKeyword(current_.file->index().keywords(), keyword);
    return best ? showKeyword(*best) : BrowserOutcome::Index;
}

// ---- going -------------------------------------------------------------------------------------------------------

BrowserOutcome HelpBrowser::visit(std::shared_ptr<const HelpFile> file, std::string path,
                                  std::optional<std::uint32_t> offset) {
    if (!offset || !file->topicAt(*offset)) return BrowserOutcome::Nothing;
    const bool isSame = current_.file == file && current_.offset == *offset;
    if (current_.file && !isSame) history_.push_back({current_.file, current_.path, current_.offset});
    if (history_.size() > kLongestHistory) history_.erase(history_.begin());
    return show(std::move(file), std::move(path), *offset);
}

BrowserOutcome HelpBrowser::show(std::shared_ptr<const HelpFile> file, std::string path, std::uint32_t offset) {
    const auto number = file->topicAt(offset);
    if (!number) return BrowserOutcome::Nothing;
    if (file != current_.file) refuseUnsafe(file->system().configMacros);
    Topic topic = file->topic(*number);
    refuseUnsafe(topic.macros);
    current_ = {std::move(file), std::move(path), offset, std::move(topic)};
    return BrowserOutcome::Show;
}

BrowserOutcome HelpBrowser::showPopUp(std::shared_ptr<const HelpFile> file, std::string path, std::uint32_t offset) {
    const auto number = file->topicAt(offset);
    if (!number) return BrowserOutcome::Nothing;
    Topic topic = file->topic(*number);
    popUp_ = {std::move(file), std::move(path), offset, std::move(topic)};
    return BrowserOutcome::PopUp;
}

BrowserOutcome HelpBrowser::goTo(std::uint32_t offset) {
    return current_.file ? visit(current_.file, current_.path, offset) : BrowserOutcome::Nothing;
}

BrowserOutcome HelpBrowser::toContents() {
    const auto topic = current_.file ? current_.file->contentsTopic() : std::nullopt;
    return topic ? goTo(current_.file->topicOffset(*topic)) : BrowserOutcome::Nothing;
}

BrowserOutcome HelpBrowser::back() {
    if (history_.empty()) return BrowserOutcome::Nothing;
    Visit last = std::move(history_.back());
    history_.pop_back();
    return show(std::move(last.file), std::move(last.path), last.offset);
}

BrowserOutcome HelpBrowser::previous() {
    const auto offset = current_.topic.previous;
    return offset ? goTo(*offset) : BrowserOutcome::Nothing;
}

BrowserOutcome HelpBrowser::next() {
    const auto offset = current_.topic.next;
    return offset ? goTo(*offset) : BrowserOutcome::Nothing;
}

// ---- links and macros --------------------------------------------------------------------------------------------

std::shared_ptr<const HelpFile> HelpBrowser::fileOfName(const ShownTopic& from, const std::string& name,
                                                        std::string& path) const {
    path = from.path;
    if (name.empty()) return from.file;
    const auto found = findFile_(name, from.path);
    if (!found) return nullptr;
    path = *found;
    return EqualIgnoringCase(path, from.path) ? from.file : Read(path);
}

BrowserOutcome HelpBrowser::follow(const ShownTopic& from, const Link& link) {
    if (link.action == LinkAction::Macro) return run(from, std::string(link.macro));
    const bool isPopUp = link.action == LinkAction::PopUp;
    std::string path;
    auto file = fileOfName(from, link.file, path);
    const auto offset = file ? file->offsetOf(link) : std::nullopt;
    if (!offset) return BrowserOutcome::Nothing;
    return isPopUp ? showPopUp(std::move(file), std::move(path), *offset)
                   : visit(std::move(file), std::move(path), offset);
}

// What a macro shows ends it: the topic that it stands in may be gone.
BrowserOutcome HelpBrowser::run(const ShownTopic& from, const std::string& macro) {
    for (const MacroCall& call : ReadMacros(macro)) {
        const MacroTable::Row* row = MacroTable::find(call.name);
        if (!row) {
            if (refused_.size() < kMostRefused) refused_.push_back(call.text);
            continue;
        }
        const BrowserOutcome outcome = row->run(*this, from, call);
        if (outcome != BrowserOutcome::Nothing) return outcome;
    }
    return BrowserOutcome::Nothing;
}

// The arguments: a file, empty for this one, and a context by its name, its hash or its number.
BrowserOutcome HelpBrowser::leadTo(const ShownTopic& from, const MacroCall& call, LinkAction action,
                                   ContextKind context) {
    if (call.arguments.size() < 2) return BrowserOutcome::Nothing;
    std::string path;
    auto file = fileOfName(from, FileNameOf(call.arguments[0]), path);
    if (!file) return BrowserOutcome::Nothing;
    const auto offset = OffsetOf(file->index(), call.arguments[1], context);
    if (!offset) return BrowserOutcome::Nothing;
    return action == LinkAction::PopUp ? showPopUp(std::move(file), std::move(path), *offset)
                                       : visit(std::move(file), std::move(path), offset);
}

void HelpBrowser::refuseUnsafe(const std::vector<std::string>& macros) {
    for (const std::string& macro : macros) {
        for (const MacroCall& call : ReadMacros(macro)) {
            if (IsUnsafe(call) && refused_.size() < kMostRefused) refused_.push_back(call.text);
        }
    }
}

// ---- keywords ----------------------------------------------------------------------------------------------------

void HelpBrowser::addFound(const Keyword& keyword, char letter) {
    const HelpIndex& index = current_.file->index();
    for (const std::uint32_t offset : index.offsetsOf(keyword, letter)) {
        if (found_.size() >= kMostFound) return;
        if (std::ranges::find(found_, offset, &FoundTopic::offset) != found_.end()) continue;
        found_.push_back({offset, std::string(index.titleOf(offset))});
    }
}

void HelpBrowser::addFound(std::string_view text, char letter) {
    for (const Keyword& keyword : current_.file->index().keywords(letter)) {
        if (EqualIgnoringCase(keyword.text, text)) addFound(keyword, letter);
    }
}

BrowserOutcome HelpBrowser::showKeyword(const Keyword& keyword, char letter) {
    found_.clear();
    addFound(keyword, letter);
    return showFound();
}

BrowserOutcome HelpBrowser::showKeywords(const MacroCall& call, char letter) {
    found_.clear();
    if (!current_.file || call.arguments.empty()) return BrowserOutcome::Nothing;
    for (const std::string& word : Words(call.arguments[0]))
        addFound(word, letter);
    return showFound();
}

BrowserOutcome HelpBrowser::showFound() {
    if (found_.empty()) return BrowserOutcome::Nothing;
    return found_.size() == 1 ? goTo(found_.front().offset) : BrowserOutcome::Choice;
}

}  // namespace vexa::topics

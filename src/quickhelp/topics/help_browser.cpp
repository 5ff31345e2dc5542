#include "quickhelp/topics/help_browser.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/ascii.h"
#include "base/directories.h"

namespace vexa::topics {
namespace {

constexpr std::size_t kMostRefused = 50;
constexpr std::size_t kMostFound = 1000;
constexpr std::string_view kMainWindow = "main";

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

// Decimal or, after "0x", hexadecimal.
std::int32_t NumberOf(std::string_view text) {
    const bool isHexadecimal = BeginsWith(text, "0x");
    if (isHexadecimal) text.remove_prefix(2);
    std::uint32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, isHexadecimal ? 16 : 10);
    return static_cast<std::int32_t>(number);
}

std::optional<std::uint32_t> OffsetOf(const TopicIndex& index, const std::string& context, ContextKind kind) {
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

std::optional<std::uint32_t> ContentsOf(const HelpFile& file) {
    const auto topic = file.contentsTopic();
    return topic ? std::optional(file.topicOffset(*topic)) : std::nullopt;
}

std::shared_ptr<const Topic> TopicAt(const TopicPlace& place) {
    return std::make_shared<const Topic>(place.file->topic(place.file->topicAt(place.offset).value_or(0)));
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

std::string ShownTopic::caption() const {
    const HelpSystem& system = file->system();
    const HelpWindow* look = system.window(window);
    std::string name = look && !look->caption.empty() ? look->caption : system.title;
    if (name.empty()) name = path.substr(DirectoryOf(path).size());
    return topic->title.empty() ? name : name + " - " + topic->title;
}

std::optional<Colour> ShownTopic::background(bool isFixed) const {
    const HelpWindow* look = file->system().window(window);
    if (!look) return std::nullopt;
    return isFixed ? look->fixedBackground : look->background;
}

// ---- opening -----------------------------------------------------------------------------------------------------

std::shared_ptr<const HelpFile> HelpBrowser::fileAt(const std::string& path) const {
    const bool isShown = current_.file && EqualIgnoringCase(path, current_.path) && current_.file->stamp() &&
                         current_.file->stamp() == platform::StampOf(path);
    return isShown ? current_.file : Read(path);
}

BrowserOutcome HelpBrowser::open(const std::string& path, const std::shared_ptr<const HelpFile>& file,
                                 std::optional<std::uint32_t> offset) {
    if (!file || !offset) return BrowserOutcome::Nothing;
    return visit({file, path, *offset, file->system().windowNamed(kMainWindow)});
}

BrowserOutcome HelpBrowser::openContents(const std::string& path) {
    const auto file = fileAt(path);
    return open(path, file, file ? ContentsOf(*file) : std::nullopt);
}

BrowserOutcome HelpBrowser::openNumber(const std::string& path, std::int32_t number) {
    const auto file = fileAt(path);
    if (!file) return BrowserOutcome::Nothing;
    const auto offset = file->index().offsetOfNumber(number);
    return open(path, file, offset ? offset : ContentsOf(*file));
}

BrowserOutcome HelpBrowser::openKeyword(const std::string& path, std::string_view keyword) {
    const auto file = fileAt(path);
    const bool isShown = file && file == current_.file;
    if (!isShown && open(path, file, file ? ContentsOf(*file) : std::nullopt) == BrowserOutcome::Nothing)
        return BrowserOutcome::Nothing;
    const auto best = BestKeyword(current_.file->index().keywords(), keyword);
    return best ? showKeyword(*best) : BrowserOutcome::Index;
}

// ---- going -------------------------------------------------------------------------------------------------------

BrowserOutcome HelpBrowser::visit(const TopicPlace& place) {
    if (!place.file->topicAt(place.offset)) return BrowserOutcome::Nothing;
    const bool isSame = current_.file == place.file && current_.offset == place.offset;
    if (current_.file && !isSame) history_.push_back(current_);
    if (history_.size() > kLongestHistory) history_.erase(history_.begin());
    return show(place);
}

BrowserOutcome HelpBrowser::show(const TopicPlace& place) {
    if (place.file != current_.file) refuseUnsafe(place.file->system().configMacros);
    current_ = {place, TopicAt(place)};
    refuseUnsafe(current_.topic->macros);
    return BrowserOutcome::Show;
}

BrowserOutcome HelpBrowser::lead(TopicPlace& place, const std::optional<std::uint32_t>& offset, LinkAction action) {
    if (!offset || !place.file->topicAt(*offset)) return BrowserOutcome::Nothing;
    place.offset = *offset;
    if (action == LinkAction::Jump) return visit(place);
    popUp_ = {place, TopicAt(place)};
    return BrowserOutcome::PopUp;
}

BrowserOutcome HelpBrowser::goTo(std::uint32_t offset) {
    if (!current_.file) return BrowserOutcome::Nothing;
    return visit({current_.file, current_.path, offset, current_.window});
}

BrowserOutcome HelpBrowser::toContents() {
    const auto file = current_.file;
    return open(std::string(current_.path), file, file ? ContentsOf(*file) : std::nullopt);
}

BrowserOutcome HelpBrowser::back() {
    if (history_.empty()) return BrowserOutcome::Nothing;
    const TopicPlace last = history_.back();
    history_.pop_back();
    return show(last);
}

BrowserOutcome HelpBrowser::previous() {
    return canGoPrevious() ? goTo(*current_.topic->previous) : BrowserOutcome::Nothing;
}

BrowserOutcome HelpBrowser::next() {
    return canGoNext() ? goTo(*current_.topic->next) : BrowserOutcome::Nothing;
}

// ---- links and macros --------------------------------------------------------------------------------------------

// In another file, or in another window that the author has defined; the offset is left open. Without a file where it
// is not to be found.
TopicPlace HelpBrowser::placeIn(const ShownTopic& from, std::string_view name, std::string_view window) const {
    TopicPlace place = {from.file, from.path, 0, from.window};
    if (!name.empty()) {
        place.path = findFile_(std::string(name), from.path).value_or(std::string());
        if (!EqualIgnoringCase(place.path, from.path)) place.file = Read(place.path);
    }
    if (!place.file) return place;
    const HelpSystem& system = place.file->system();
    if (place.file != from.file) place.window = system.windowNamed(kMainWindow);
    if (!window.empty()) place.window = system.windowNamed(window);
    return place;
}

BrowserOutcome HelpBrowser::follow(const ShownTopic& from, const Link& link) {
    if (link.action == LinkAction::Macro) return run(from, std::string(link.macro));
    TopicPlace place = placeIn(from, link.file, link.window);
    if (!place.file) return BrowserOutcome::Nothing;
    if (place.file->system().window(link.windowNumber)) place.window = link.windowNumber;
    return lead(place, place.file->offsetOf(link), link.action);
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

// The arguments: a file, empty for this one, with a window after ">", and a context by its name, its hash or its
// number.
BrowserOutcome HelpBrowser::leadTo(const ShownTopic& from, const MacroCall& call, LinkAction action,
                                   ContextKind context) {
    if (call.arguments.size() < 2) return BrowserOutcome::Nothing;
    const std::string_view target = call.arguments[0];
    const std::size_t end = std::min(target.find('>'), target.size());
    const std::string_view window = target.substr(std::min(end + 1, target.size()));
    TopicPlace place = placeIn(from, TrimBlanks(target.substr(0, end)), TrimBlanks(window));
    if (!place.file) return BrowserOutcome::Nothing;
    return lead(place, OffsetOf(place.file->index(), call.arguments[1], context), action);
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
    const TopicIndex& index = current_.file->index();
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

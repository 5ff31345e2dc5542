// Whatever a user does with one document in whatever order - keys, mouse, clipboard, searches, saves and loads: what is
// saved is what was there, and undoing everything brings back every byte of the last save or load.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "document/memory_clipboard.h"
#include "document/print/print_layout.h"
#include "fuzz/fuzzing.h"
#include "search/find_commands.h"
#include "search/function_list.h"

namespace vexa::fuzz {
namespace {

constexpr const char* kFile = "C:\\A.C";
constexpr int kMostActs = 200;
constexpr int kMostFiles = 4;               // saves and loads wait for the disk
constexpr std::size_t kMostText = 100'000;  // pasting what was copied doubles a text

class StoppedClock : public SearchWatch {
  public:
    std::int64_t milliseconds() override { return 0; }
    bool stopAsked() override { return false; }
};

ElectricWords& Words() {
    static ElectricWords words = [] {
        ElectricList list;
        list.set("if", "if (\\c)\\n{\\n}");
        list.set("a", "b\\tc");
        ElectricWords all("C:");
        Require(all.replace(std::move(list)));
        return all;
    }();
    return words;
}

std::string CharactersOf(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines)
        all += line;
    std::erase_if(all, [](char c) { return c == '\r' || c == '\n'; });
    return all;
}

class User {
  public:
    explicit User(Input input) : input_(std::move(input)) {
        const std::uint8_t size = input_.byte();
        File(kFile, platform::OpenMode::CreateAlways).write(input_.text(size));
        document_.setName(kFile);
        document_.setProfile(profile_);
        view_.setClipboard(clipboard_);
        view_.setElectric(Words());
        view_.resize(5, 20);
        load();
    }

    void act() {
        using Act = void (User::*)();
        static constexpr Act kActs[] = {&User::pressKey,  &User::pressKey,  &User::type,   &User::useMouse,
                                        &User::command,   &User::command,   &User::fill,   &User::search,
                                        &User::replace,   &User::save,      &User::reload, &User::go,
                                        &User::setOption, &User::lookAround};
        for (int i = 0; i < kMostActs && !input_.rest().empty() && textSize() < kMostText; ++i)
            (this->*kActs[input_.byte() % std::size(kActs)])();
    }

    void undoAll() {
        while (!document_.history().isEmpty())
            view_.undo();
        Require(LinesOf(document_) == before_ && !document_.isModified());
    }

  private:
    void pressKey() {
        KeyEvent event;
        event.key = input_.byte();
        const std::uint8_t how = input_.byte();
        event.shift = how & 1;
        event.control = how & 2;
        event.alt = how & 4;
        event.keypad = how & 8;
        event.repeat = static_cast<std::uint16_t>(1 + (how >> 4) % 4);
        view_.key(event);
    }
    void type() {
        KeyEvent event;
        event.character = input_.byte();
        view_.key(event);
    }
    Cell cell() {
        const std::int32_t row = input_.byte() % 12 - 2;
        return {row, input_.byte() % 40 - 5};
    }
    void useMouse() {
        const std::uint8_t how = input_.byte();
        view_.press(cell(), how & 1, static_cast<MousePress>(how >> 1 & 3));
        view_.drag(cell());
        view_.release();
    }
    void command() {
        using Command = void (*)(EditView & view);
        static constexpr Command kCommands[] = {[](EditView& view) { view.undo(); },
                                                [](EditView& view) { view.redo(); },
                                                [](EditView& view) { view.cut(); },
                                                [](EditView& view) { view.copy(); },
                                                [](EditView& view) { view.paste(); },
                                                [](EditView& view) { view.clear(); },
                                                [](EditView& view) { view.selectAll(); },
                                                [](EditView& view) { view.toMatchingBracket(); },
                                                [](EditView& view) { view.changeCase(CaseChange::Toggle); }};
        kCommands[input_.byte() % std::size(kCommands)](view_);
    }
    void fill() {
        clipboard_.kind = static_cast<MarkMode>(input_.byte() & 7);
        const std::uint8_t size = input_.byte();
        clipboard_.text = input_.text(size);
    }
    void search() {
        setSearch();
        using Search = void (*)(FindCommands&, EditView&);
        static constexpr Search kSearches[] = {[](FindCommands& find, EditView& view) { find.findNext(&view); },
                                               [](FindCommands& find, EditView& view) { find.findPrevious(&view); },
                                               [](FindCommands& find, EditView& view) { find.findAtCaret(&view); }};
        kSearches[input_.byte() % std::size(kSearches)](find_, view_);
    }
    void replace() {
        setSearch();
        find_.replace(&view_);
    }
    void setSearch() {
        const std::uint8_t how = input_.byte();
        options_.setForward(how & 1);
        options_.setMatchCase(how & 2);
        options_.setWholeWord(how & 4);
        options_.setReplaceAll(how & 8);
        options_.setRegularExpression(how & 16);
        if ((how & 32) == 0) return;
        const std::uint8_t sizes = input_.byte();
        options_.setFindText(input_.text(sizes & 15), how & 64);
        options_.setReplaceText(input_.text(sizes >> 4));
    }
    void save() {
        if (files_++ >= kMostFiles) return;
        const std::vector<std::string> saved = LinesOf(document_);
        Require(document_.write());
        Require(!document_.isModified() && document_.history().isEmpty() && LinesOf(document_) == saved);
        before_ = saved;
    }
    void reload() {
        if (files_++ < kMostFiles) load();
    }
    // Lines may come back cut or joined, but none of their characters is lost.
    void load() {
        const std::string saved = CharactersOf(before_);
        Require(document_.load());
        before_ = LinesOf(document_);
        Require(isFirstLoad_ || CharactersOf(before_) == saved);
        isFirstLoad_ = false;
    }
    void go() {
        const std::uint8_t where = input_.byte();
        const std::uint8_t number = input_.byte();
        if (where % 4 == 0) view_.goToLine(number * (where & 4 ? 100 : 1));
        if (where % 4 == 1) view_.goTo(LineIndex(number), CharColumn(input_.byte() * 2));
        if (where % 4 == 2) document_.dropBookmark(number % 10);
        if (where % 4 == 3) view_.jumpToBookmark(number % 10);
    }
    // As the settings file may have them.
    void setOption() {
        const std::uint8_t which = input_.byte();
        const std::uint8_t value = input_.byte();
        static constexpr std::array kSwitches = {&EditorOptions::InsertMode, &EditorOptions::UseTabs,
                                                 &EditorOptions::SmartIndent, &EditorOptions::LineWrap};
        if (which % 8 < kSwitches.size()) editorOptions_.*kSwitches[which % 8] = value & 1;
        if (which % 8 == 4) editorOptions_.TabSize = value - 5;
        if (which % 8 == 5) editorOptions_.WrapColumn = value * 2 - 10;
        if (which % 8 == 6) view_.resize(value % 20, value);
        if (which % 8 == 7) view_.setHighlighting(value & 1);
    }
    void lookAround() {
        for (std::int32_t row = 0; row <= view_.rows(); ++row)
            Require(view_.render(row).cells.size() <= static_cast<std::size_t>(view_.columns()));
        view_.caret();
        view_.scrollBy(input_.byte() - 128);
        document_.lookAheadForComments(100);
        for (const FunctionEntry& entry : FunctionsOf(document_))
            Require(entry.line <= document_.lastLine(LastUsed::Text));
        if (document_.marked().active) print(PrintArea::Marked);
        print(PrintArea::Document);
    }
    void print(PrintArea area) {
        const PrintLayout layout(document_, {area, kSmallestPage, {}, {"A.C", ""}});
        for (std::int32_t page = 1; page <= layout.pageCount(); ++page)
            Require(!layout.page(page).rows.empty());
    }
    std::size_t textSize() const {
        std::size_t size = 0;
        for (LineIndex i; i <= document_.lastLine(LastUsed::Plain); ++i)
            size += document_.text(i).size() + 1;
        return size;
    }

    Input input_;
    int files_ = 0;
    bool isFirstLoad_ = true;
    SilentNotices notices_;
    StoppedClock clock_;
    EditorOptions editorOptions_;
    ExtensionProfile profile_;
    TextDocument document_{editorOptions_, notices_};
    EditView view_{document_, editorOptions_, notices_};
    test::MemoryClipboard clipboard_;
    SearchOptions options_;
    FindCommands find_{options_, notices_, clock_};
    std::vector<std::string> before_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    User user(Input(data, size));
    user.act();
    user.undoAll();
    return 0;
}

}  // namespace vexa::fuzz

// A document in its window: where the caret, the marking and the colours are shown, in the cases of the folder
// scripts/.
#include "base/config_store.h"
#include "document/replay_case.h"
#include "document/text/columns.h"
#include "document/view/bookmark_model.h"
#include "document/view/edit_view.h"
#include "document/view/goto_line_model.h"
#include "document/view/margin_row.h"
#include "document/view/row_renderer.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "view_scripts.inc"
};

// A window of 10 rows of 40 columns.
struct ViewStage : ScriptStage {
    ViewStage() {
        document.newEmpty();
        view.resize(10, 40);
    }

    EditorOptions options;
    ExtensionProfile profile;
    TextDocument document{options, notices};
    EditView view{document, options, notices};
    ConfigStore store{disk.path("VEXA.INI")};
};

// ---- what is given -------------------------------------------------------------------------------------------------

void Put(ViewStage& stage, std::int32_t line, std::string_view text) {
    stage.document.lines().put(TextDocument::makeLine(text), line);
}

// Lines from the first on, with "|" between them.
Told Fill(ViewStage& stage, Words words) {
    std::string text = words.rest();
    for (std::int32_t line = 0;; ++line) {
        const std::size_t end = std::min(text.find('|'), text.size());
        Put(stage, line, text.substr(0, end));
        if (end == text.size()) return {};
        text.erase(0, end + 1);
    }
}

Told FillNumbered(ViewStage& stage, Words words) {
    const int count = words.number();
    for (int i = 0; i < count; ++i)
        Put(stage, i, "line " + std::to_string(i));
    return {};
}

Told Press(ViewStage& stage, Words words) {
    while (words.more())
        PressWord(stage.view, words.word());
    return {};
}

Told Type(ViewStage& stage, Words words) {
    for (const char c : words.rest())
        stage.view.key(KeyEvent{.character = static_cast<unsigned char>(c)});
    return {};
}

// Whether a key with Alt, or with Ctrl and Alt, means anything.
Told KeyMeans(ViewStage& stage, Words words) {
    const std::string held = words.word();
    return stage.view.key(
        KeyEvent{.key = static_cast<std::uint16_t>(words.word()[0]), .control = held == "ctrl-alt", .alt = true});
}

Told GoTo(ViewStage& stage, Words words) {
    const LineIndex line(words.number());
    return stage.view.goTo(line, CharColumn(words.number())), Told();
}

Cell CellOf(Words& words) {
    const int row = words.number();
    return {row, words.number()};
}

// Row and column, and how: "extend" from the caret on, by columns, lines or words.
Told MouseDown(ViewStage& stage, Words words) {
    static const std::map<std::string, MousePress> kWays = {
        {"column", MousePress::Column}, {"lines", MousePress::Lines}, {"word", MousePress::Word}};
    const Cell cell = CellOf(words);
    const std::string way = words.word();
    if (const auto found = kWays.find(way); found != kWays.end())
        return stage.view.press(cell, false, found->second), Told();
    return stage.view.press(cell, way == "extend"), Told();
}

const std::map<std::string, MarkMode> kModes = {
    {"lines", MarkMode::Lines}, {"stream", MarkMode::Stream}, {"column", MarkMode::Column}};

// Mode, and line and column of start and end.
Told Mark(ViewStage& stage, Words words) {
    const MarkMode mode = kModes.at(words.word());
    const auto point = [&words] {
        const LineIndex line(words.number());
        return MarkPoint{line, DisplayColumn(words.number())};
    };
    const MarkPoint start = point();
    return stage.document.marked() = {mode, true, start, point()}, Told();
}

// ---- what is seen --------------------------------------------------------------------------------------------------

Told Marked(ViewStage& stage, Words) {
    const MarkedArea& area = stage.document.marked();
    if (!area.active) return "none";
    std::string shown;
    for (const auto& [name, mode] : kModes)
        shown += mode == area.mode ? name : "";
    for (const MarkPoint& point : {area.start, area.end})
        shown += " " + std::to_string(point.line.value) + " " + std::to_string(point.column.value);
    return shown;
}

Told Caret(ViewStage& stage, Words) {
    const auto caret = stage.view.caret();
    return caret ? std::to_string(caret->row) + " " + std::to_string(caret->column) : "none";
}

// Number and bookmark, then what is true of the line.
Told Margin(ViewStage& stage, Words words) {
    const MarginRow row = RenderMarginRow(stage.document, LineIndex(words.number()));
    return row.number + row.bookmark + (row.isChanged ? " changed" : "") + (row.isCurrent ? " caret" : "");
}

// Line, left column and width of the cells of a row.
ViewRow RowOf(ViewStage& stage, Words& words, bool isHighlighted = true) {
    const LineIndex line(words.number());
    const DisplayColumn left(words.number());
    return RenderRow(stage.document, line, left, words.more() ? words.number() : 12, isHighlighted);
}

// A letter a cell: "M" marked, "." plain, else the first letter of the element.
std::string ColoursOf(const ViewRow& row) {
    std::string letters;
    const CellRun* before = nullptr;
    for (const CellRun& run : row.runs) {
        EXPECT_EQ(run.start, static_cast<std::int32_t>(letters.size())) << "runs leave no gap";
        EXPECT_FALSE(before && before->text == run.text && before->background == run.background) << "runs are joined";
        const bool marked = run.background == ColourElement::MarkingBackground;
        EXPECT_EQ(run.text == ColourElement::MarkingText, marked);
        letters.append(static_cast<std::size_t>(run.length), "?c.k?MnpsY"[static_cast<std::size_t>(run.text)]);
        before = &run;
    }
    return letters;
}

// ---- going to lines and bookmarks ----------------------------------------------------------------------------------

Told Jump(ViewStage& stage, Words words) {
    BookmarkModel model(stage.store);
    model.number = words.rest();
    return model.jump(stage.view, stage.store, stage.notices);
}

Told GoToLine(ViewStage& stage, Words words) {
    GotoLineModel model(stage.store);
    model.line = words.rest();
    model.go(stage.view, stage.store);
    return stage.document.currentLine().value;
}

Told DropTold(ViewStage& stage, Words words) {
    Editing editing(stage.document, stage.options, stage.notices);
    return DropBookmark(editing, words.number()), Told();
}

const Verbs<ViewStage> kVerbs = {
    {"lines", &Fill},
    {"numbered", &FillNumbered},
    {"insert-mode", [](ViewStage& s, Words w) { return s.options.InsertMode = w.yes(), Told(); }},
    {"line-numbers", [](ViewStage& s, Words w) { return s.options.LineNumbers = w.yes(), Told(); }},
    {"tab-size", [](ViewStage& s, Words w) { return s.options.TabSize = w.number(), Told(); }},
    {"coloured", [](ViewStage& s, Words) { return s.document.setProfile(s.profile), Told(); }},
    {"press", &Press},
    {"type", &Type},
    {"key-means", &KeyMeans},
    {"undo", [](ViewStage& s, Words) { return s.view.undo(), Told(); }},
    {"go", &GoTo},
    {"scroll-to", [](ViewStage& s, Words w) { return s.view.scrollToLine(LineIndex(w.number())), Told(); }},
    {"mouse-down", &MouseDown},
    {"drag", [](ViewStage& s, Words w) { return s.view.drag(CellOf(w)), Told(); }},
    {"mouse-up", [](ViewStage& s, Words) { return s.view.release(), Told(); }},
    {"mark", &Mark},
    {"top", [](ViewStage& s, Words) { return Told(s.view.topLine().value); }},
    {"left", [](ViewStage& s, Words) { return Told(s.view.leftColumn().value); }},
    {"line", [](ViewStage& s, Words) { return Told(s.document.currentLine().value); }},
    {"column", [](ViewStage& s, Words) { return Told(s.document.column().value); }},
    {"last-line", [](ViewStage& s, Words) { return Told(s.document.lastLine(LastUsed::Plain).value); }},
    {"caret", &Caret},
    {"marked", &Marked},
    {"margin", &Margin},
    {"position-text", [](ViewStage& s, Words) { return Told(s.view.positionText()); }},
    {"mode-text", [](ViewStage& s, Words) { return Told(s.view.modeText()); }},
    {"modified", [](ViewStage& s, Words) { return Told(s.document.isModified()); }},
    {"can-undo", [](ViewStage& s, Words) { return Told(!s.document.history().isEmpty()); }},
    {"cells", [](ViewStage& s, Words w) { return Told(RowOf(s, w).cells); }},
    {"colours", [](ViewStage& s, Words w) { return Told(ColoursOf(RowOf(s, w))); }},
    {"plain-colours", [](ViewStage& s, Words w) { return Told(ColoursOf(RowOf(s, w, false))); }},
    {"drop", [](ViewStage& s, Words w) { return s.document.dropBookmark(w.number()), Told(); }},
    {"drop-told", &DropTold},
    {"jump", &Jump},
    {"noted-bookmark", [](ViewStage& s, Words) { return Told(BookmarkModel(s.store).number); }},
    {"go-to-line", &GoToLine},
    {"noted-line", [](ViewStage& s, Words) { return Told(GotoLineModel(s.store).line); }},
    {"load",
     [](ViewStage& s, Words w) {
         s.document.setName(s.path(w.rest()));
         return Told(s.document.load());
     }},
};

VEXA_SCRIPTS(View, kFiles, ViewStage, kVerbs);

TEST(Columns, AreCountedCharacterByCharacter) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        std::string text(seed, 'a');
        for (std::size_t i = seed % 5; i < text.size(); i += 1 + seed % 11)
            text[i] = "\t\x08\x0A\x89\x00\x09\xFF"[i % 7];
        std::int32_t display = 0;
        for (std::size_t i = 0; i <= text.size() + 2; ++i) {
            const CharColumn column(static_cast<std::int32_t>(i));
            const std::int32_t next = i < text.size() && text[i] == '\t' ? (display / 8 + 1) * 8 : display + 1;
            ASSERT_EQ(ToDisplay(text, column, 8), DisplayColumn(display)) << seed;
            for (; display < next; ++display)
                ASSERT_EQ(ToCharacter(text, DisplayColumn(display), 8), column) << seed;
        }
    }
}

// What a document remembers of a long line says the same as the line's text does now.
void ExpectColumnsOfText(const ViewStage& stage) {
    const TextDocument& document = stage.document;
    const std::string_view text = document.text(LineIndex(0));
    for (std::int32_t i = 0; i < 40'000; i += 97) {
        ASSERT_EQ(document.toDisplay(LineIndex(0), CharColumn(i)), ToDisplay(text, CharColumn(i), document.tabSize()));
        ASSERT_EQ(document.toCharacter(LineIndex(0), DisplayColumn(i)),
                  ToCharacter(text, DisplayColumn(i), document.tabSize()));
        ASSERT_EQ(RenderRow(document, LineIndex(0), DisplayColumn(i), 40).cells,
                  VisibleCells(text, document.tabSize(), DisplayColumn(i), 40));
    }
}

TEST(Columns, OfALongLineFollowEveryChange) {
    std::string text(20'000, 'a');
    for (std::size_t i = 0; i < text.size(); i += 1 + i % 11)
        text[i] = '\t';
    void (*const changes[])(ViewStage&) = {
        [](ViewStage&) {},
        [](ViewStage& s) { s.document.current().replace(CharColumn(9), '\t'); },
        [](ViewStage& s) { s.document.current().insert(CharColumn(4000), 'x'); },
        [](ViewStage& s) { s.document.current().erase(CharColumn(0)); },
        [](ViewStage& s) { s.document.current().append(std::string(5000, '\t')); },
        [](ViewStage& s) { s.document.current().replaceRun(CharColumn(6), 7000, "\tb"); },
        [](ViewStage& s) { s.options.TabSize = 3; },
        [](ViewStage& s) { s.document.current().truncate(CharColumn(5000)); },
        [](ViewStage& s) { Put(s, 0, std::string(9000, '\t')); },
        [](ViewStage& s) { Put(s, 0, std::string(9000, 'c')); },
    };
    ViewStage stage;
    Put(stage, 0, text);
    for (const auto change : changes) {
        change(stage);
        ExpectColumnsOfText(stage);
    }
}

}  // namespace
}  // namespace vexa::test

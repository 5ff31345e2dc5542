// Finding and replacing where lines are long, windows small and searches slow.
#include <gtest/gtest.h>

#include <string>

#include "search/find_session.h"

namespace vexa::test {
namespace {

class FindView : public testing::Test, protected FindSession {
  protected:
    FindView() { document.newEmpty(); }

    void put(std::int32_t line, const std::string& text) { document.lines().put(document.makeLine(text), line); }
    std::string text(std::int32_t line) const { return std::string(document.text(LineIndex(line))); }
    void undoAll() {
        while (!document.history().isEmpty())
            view.undo();
    }
};

struct FakeRows : ListRows {
    std::size_t rowCount() const override { return rows.size(); }
    std::string_view rowText(std::size_t row) const override { return rows[row]; }
    RowKind rowKind(std::size_t) const override { return RowKind::Plain; }
    std::size_t longestRow() const override { return 0; }
    std::optional<std::size_t> selectedRow() const override { return selected; }
    void selectRow(std::size_t row) override { selected = row; }
    void activateRow() override {}
    void clearRows() override {}

    std::vector<std::string> rows;
    std::optional<std::size_t> selected;
};

TEST_F(FindView, RowsAreSearchedFromTheSelectedOneOn) {
    FakeRows list;
    options.setFindText("b", false);
    commands.findNext({nullptr, &list});
    EXPECT_EQ(list.selected, std::nullopt);
    list.rows = {"ab", "a", "cb", "b"};
    commands.findNext({nullptr, &list});
    EXPECT_EQ(list.selected, 0u);
    commands.findNext({nullptr, &list});
    EXPECT_EQ(list.selected, 2u);
    EXPECT_EQ(notices.lastStatus(), "Search completed.");
    commands.findPrevious({nullptr, &list});
    EXPECT_EQ(list.selected, 0u);
    commands.findPrevious({nullptr, &list});
    EXPECT_EQ(list.selected, 0u);
    EXPECT_NE(notices.lastStatus(), "Search completed.");
    list.selected.reset();
    commands.findPrevious({nullptr, &list});
    EXPECT_EQ(list.selected, 3u);
}

TEST_F(FindView, AMatchIsBroughtIntoSightWithItsEnd) {
    view.resize(10, 40);
    put(0, std::string(35, ' ') + "long match");
    put(60, std::string(200, ' ') + "long match");
    options.setFindText("long match", false);

    commands.findNext(&view);
    EXPECT_EQ(view.caret(), (Cell{0, 30})) << "the ten columns end at the window's edge";
    commands.findNext(&view);
    EXPECT_EQ(view.topLine(), LineIndex(55)) << "a line out of sight comes to the middle";
    ASSERT_TRUE(view.caret());
    EXPECT_LE(view.caret()->column + 10, 40);

    put(70, std::string(50, ' ') + std::string(60, 'w'));
    options.setFindText("w+", false);
    options.setRegularExpression(true);
    commands.findNext(&view);
    EXPECT_EQ(view.leftColumn(), DisplayColumn(50)) << "a match wider than the window shows its start";
}

TEST_F(FindView, TheMarkedColumnsBeginAtTheScreenColumnAndAreOneForEachCharacter) {
    put(0, "\tx\ty");
    options.setFindText("x\\ty", false);
    commands.findNext(&view);
    EXPECT_EQ(document.marked().start.column, DisplayColumn(4));
    EXPECT_EQ(document.marked().end.column, DisplayColumn(7));
    EXPECT_EQ(options.lastMatch.column, CharColumn(1));
    EXPECT_EQ(options.lastMatch.length, 3);
}

// Joined lines can be longer than the cursor can go.
TEST_F(FindView, MatchesBehindTheLastColumnAreFoundMarkedAndReplaced) {
    const std::string start(310, '.');
    put(0, start + "int int" + start + "int");
    put(1, "int");
    options.setFindText("int", false);
    for (const std::int32_t column : {310, 314, 627}) {
        commands.findNext(&view);
        ASSERT_EQ(options.lastMatch.line, LineIndex(0));
        ASSERT_EQ(options.lastMatch.column, CharColumn(column));
        ASSERT_EQ(document.marked().start.column, DisplayColumn(column));
    }
    options.setReplaceText("an int");
    commands.replace(&view);
    EXPECT_EQ(text(0), start + "int int" + start + "an int");

    view.goTo(LineIndex(0), CharColumn(0));
    options.setReplaceAll(true);
    commands.replace(&view);
    EXPECT_EQ(text(0), start + "an int an int" + start + "an an int");
    EXPECT_EQ(text(1), "an int");
    undoAll();
    EXPECT_EQ(text(0), start + "int int" + start + "int");
}

TEST_F(FindView, DeleteTakesAMarkedMatchBehindTheLastColumn) {
    const std::string start(310, '.');
    put(0, start + "int;");
    options.setFindText("int", false);
    commands.findNext(&view);
    view.clear();
    EXPECT_EQ(text(0), start + ";");
    view.undo();
    EXPECT_EQ(text(0), start + "int;");
}

TEST_F(FindView, AMatchIsAtMost300CharactersLong) {
    put(0, std::string(650, 'x'));
    options.setFindText("x+", false);
    options.setReplaceText("-");
    options.setRegularExpression(true);
    options.setReplaceAll(true);
    commands.replace(&view);
    EXPECT_EQ(text(0), "---");
    EXPECT_EQ(notices.lastStatus(), "Replacement completed with 3 occurrences changed.");
}

TEST_F(FindView, TheBusyCursorIsShownForAsLongAsASearchLasts) {
    options.setFindText("x", false);
    commands.findNext(&view);
    EXPECT_EQ(notices.busyCount, 1);
    EXPECT_EQ(notices.busyDepth, 0);
}

TEST_F(FindView, WithoutADocumentNothingIsSearched) {
    options.setFindText("x", false);
    commands.findNext(nullptr);
    EXPECT_EQ(notices.lastStatus(), "Action can only be performed on an open file!");
    commands.findPrevious(nullptr);
    EXPECT_FALSE(commands.replace(nullptr));
    EXPECT_EQ(notices.statuses.size(), 3u);
    EXPECT_EQ(notices.busyCount, 0);
}

// ---- long searches -----------------------------------------------------------------------------------------------

class LongSearch : public FindView {
  protected:
    static constexpr std::int32_t kLines = 6400;

    LongSearch() {
        for (std::int32_t i = 0; i < kLines; ++i)
            put(i, "one int");
        options.setFindText("int", false);
        options.setReplaceText("INTEGER");
        options.setReplaceAll(true);
        watch.step = 100;  // a look at the clock, every 64 steps
    }
};

TEST_F(LongSearch, AReplaceAllTellsHowFarItIsAfterASecond) {
    commands.replace(&view);
    ASSERT_GT(notices.statuses.size(), 3u);
    EXPECT_EQ(notices.statuses[0].text, "Searching, 640 occurrences changed so far. Press Esc to stop.");
    EXPECT_EQ(notices.lastStatus(), "Replacement completed with 6400 occurrences changed.");
    EXPECT_LT(notices.statuses.size(), 45u) << "not at each look";
}

TEST_F(LongSearch, AQuickOneTellsNothing) {
    watch.step = 9;
    commands.replace(&view);
    EXPECT_EQ(notices.statuses.size(), 1u);
}

TEST_F(LongSearch, EscStopsAndOneUndoTakesWhatWasDoneBack) {
    watch.stopAt = 2000;
    commands.replace(&view);
    EXPECT_EQ(notices.lastStatus(), "Replacement stopped with 1216 occurrences changed.");
    EXPECT_EQ(text(1215), "one INTEGER");
    EXPECT_EQ(text(1216), "one int");
    EXPECT_EQ(document.currentLine(), LineIndex(0));
    view.undo();
    EXPECT_EQ(text(0), "one int");
    EXPECT_EQ(text(1215), "one int");
    EXPECT_FALSE(document.isModified());
    EXPECT_TRUE(document.history().isEmpty());
    view.redo();
    EXPECT_EQ(text(1215), "one INTEGER");
    EXPECT_EQ(text(1216), "one int");
}

TEST_F(LongSearch, EscStopsASearchToo) {
    options.setFindText("nowhere", false);
    watch.stopAt = 1500;
    commands.findNext(&view);
    EXPECT_EQ(notices.lastStatus(), "Search stopped.");
    EXPECT_EQ(document.currentLine(), LineIndex(0));
}

}  // namespace
}  // namespace vexa::test

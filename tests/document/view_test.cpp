#include <gtest/gtest.h>

#include <string>

#include "document/document_session.h"
#include "document/view/margin_row.h"

namespace vexa {
namespace {

class View : public testing::Test, protected test::DocumentSession {
  protected:
    View() {
        std::vector<std::string> lines;
        for (int i = 0; i < 300; ++i)
            lines.push_back("line " + std::to_string(i));
        fill(lines);
        view_.resize(10, 40);
    }
    int top() const { return view_.topLine().value; }
    int line() const { return document_.currentLine().value; }
};

TEST_F(View, TheWindowFollowsTheCaretAndNoFurther) {
    press(kKeyDown, 9);
    EXPECT_EQ(top(), 0);
    press(kKeyDown);
    EXPECT_EQ(top(), 1);
    press(kKeyUp, 9);
    EXPECT_EQ(top(), 1);
    press(kKeyUp);
    EXPECT_EQ(top(), 0);
    EXPECT_EQ(view_.caret(), (Cell{0, 0}));
}

TEST_F(View, PagesTurnTheWindowAndStopAtTheEnds) {
    press(kKeyPageDown);
    EXPECT_EQ(top(), 9);
    EXPECT_EQ(line(), 9);
    press(kKeyPageUp, 3);
    EXPECT_EQ(line(), 0);
    press(kKeyPageDown, 100);
    EXPECT_EQ(line(), 299);
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), 299) << "a page makes no new lines";
}

TEST_F(View, HomeAndEndReachTheWindowThenTheDocument) {
    view_.goTo(LineIndex(100), CharColumn(3));
    const int shown = top();
    press(kKeyHome, 2);
    EXPECT_EQ(line(), shown);
    press(kKeyHome);
    EXPECT_EQ(line(), 0);
    press(kKeyEnd, 2);
    EXPECT_EQ(line(), 9);
    press(kKeyEnd);
    EXPECT_EQ(line(), 299);
}

TEST_F(View, SidewaysScrollingKeepsTheCaretInSight) {
    press(kKeyRight, 39);
    EXPECT_EQ(view_.leftColumn(), DisplayColumn(0));
    press(kKeyRight);
    EXPECT_GT(view_.leftColumn(), DisplayColumn(0));
    EXPECT_LT(view_.caret()->column, 40);
    press(kKeyHome);
    EXPECT_EQ(view_.leftColumn(), DisplayColumn(0));
}

TEST_F(View, UndoOutOfSightIsShownInTheMiddle) {
    view_.goTo(LineIndex(100), CharColumn(0));
    type("x");
    view_.scrollToLine(LineIndex(0));
    EXPECT_EQ(view_.caret(), std::nullopt);
    view_.undo();
    EXPECT_EQ(top(), 95);
}

TEST_F(View, TheMousePlacesTheCaretAndMarks) {
    view_.scrollToLine(LineIndex(50));
    view_.press({2, 3}, false);
    view_.drag({2, 3});
    EXPECT_EQ(line(), 52);
    EXPECT_FALSE(document_.marked().active) << "a click is not a drag";
    view_.drag({4, 1});
    view_.drag({4, 2});
    view_.release();
    EXPECT_EQ(
        document_.marked(),
        (MarkedArea{MarkMode::Stream, true, {LineIndex(52), DisplayColumn(3)}, {LineIndex(54), DisplayColumn(2)}}));
    view_.press({0, 0}, true);
    view_.release();
    EXPECT_EQ(document_.marked().start.line, LineIndex(50));
    EXPECT_EQ(document_.marked().end, (MarkPoint{LineIndex(52), DisplayColumn(3)}));
    view_.press({0, 0}, false);
    view_.release();
    EXPECT_FALSE(document_.marked().active);
}

TEST_F(View, MouseMarksColumnsLinesAndWords) {
    const auto area = [](MarkMode mode, int fromLine, int fromColumn, int toLine, int toColumn) {
        return MarkedArea{
            mode, true, {LineIndex(fromLine), DisplayColumn(fromColumn)}, {LineIndex(toLine), DisplayColumn(toColumn)}};
    };
    view_.press({2, 4}, false, MousePress::Column);
    view_.drag({1, 7});
    view_.release();
    EXPECT_EQ(document_.marked(), area(MarkMode::Column, 1, 4, 2, 7));
    view_.press({5, -2}, false, MousePress::Lines);
    EXPECT_EQ(document_.marked(), area(MarkMode::Lines, 5, 0, 5, 0)) << "the pressed line at once";
    view_.drag({3, -2});
    view_.release();
    EXPECT_EQ(document_.marked(), area(MarkMode::Lines, 3, 0, 5, 0));
    view_.press({6, 6}, false, MousePress::Word);
    EXPECT_EQ(document_.marked(), area(MarkMode::Stream, 6, 5, 6, 6));
    view_.drag({6, 1});
    EXPECT_EQ(document_.marked(), area(MarkMode::Stream, 6, 0, 6, 6)) << "both words, whichever comes first";
    view_.drag({7, 2});
    view_.release();
    EXPECT_EQ(document_.marked(), area(MarkMode::Stream, 6, 5, 7, 4));
    view_.press({0, 20}, false, MousePress::Word);
    EXPECT_FALSE(document_.marked().active) << "there is no word";
}

TEST_F(View, MarginShowsNumbersBookmarksAndChangedLines) {
    const auto margin = [this](int line) { return RenderMarginRow(document_, LineIndex(line)); };
    EXPECT_EQ(margin(0), (MarginRow{"   1", ' ', false, true}));
    EXPECT_EQ(margin(99), (MarginRow{" 100", ' ', false, false}));
    EXPECT_EQ(margin(300), (MarginRow{"    ", ' ', false, false})) << "beyond the end";
    press(kKeyDelete);
    view_.undo();  // from here on the text counts as loaded
    view_.goTo(LineIndex(99), CharColumn(0));
    document_.dropBookmark(7);
    document_.dropBookmark(3);
    press(kKeyEnter);
    EXPECT_EQ(margin(99), (MarginRow{" 100", '3', true, false}));
    EXPECT_EQ(margin(100), (MarginRow{" 101", ' ', false, true})) << "it has only moved";
    view_.undo();
    EXPECT_FALSE(margin(99).isChanged) << "all changes have been undone";
    press(kKeyDelete);
    EXPECT_TRUE(margin(99).isChanged);
    EXPECT_FALSE(margin(100).isChanged) << "a line that had only been changed before the undo";
    options_.LineNumbers = false;
    EXPECT_EQ(margin(99).number, "");
}

TEST_F(View, DraggingOutsideScrolls) {
    view_.scrollToLine(LineIndex(50));
    view_.press({5, 0}, false);
    view_.drag({-3, -5});
    EXPECT_EQ(top(), 47);
    view_.drag({12, 0});
    EXPECT_EQ(top(), 50);
    view_.release();
}

TEST_F(View, OneDragIsOneUndoStep) {
    view_.press({1, 1}, false);
    for (int column = 2; column < 30; ++column)
        view_.drag({3, column});
    view_.release();
    view_.undo();
    EXPECT_EQ(line(), 0);
    EXPECT_TRUE(document_.history().isEmpty());
}

TEST_F(View, KeysWithoutAMeaningAreLeftToTheWindow) {
    KeyEvent event;
    for (const std::uint16_t key : {std::uint16_t{'Q'}, std::uint16_t{0x70}}) {
        event.key = key;
        event.alt = true;
        EXPECT_FALSE(view_.key(event));
    }
    event = {};
    event.key = 'D';
    event.alt = event.control = true;
    EXPECT_FALSE(view_.key(event)) << "a key with AltGr";
    EXPECT_FALSE(document_.isModified());
}

TEST_F(View, TheStatusFieldsCountFromOne) {
    view_.goTo(LineIndex(41), CharColumn(6));
    EXPECT_EQ(view_.positionText(), " L:00042 C:007");
    EXPECT_STREQ(view_.modeText(), "INS");
    options_.InsertMode = false;
    EXPECT_STREQ(view_.modeText(), "OVR");
}

TEST_F(View, AbsurdTabSizesDoNoHarm) {
    document_.current().append("\t\tx");
    for (const std::int32_t size : {0, -7, 0x7FFFFFFF}) {
        options_.TabSize = size;
        press(kKeyEnd);
        press(kKeyTab);
        EXPECT_FALSE(view_.render(0).cells.empty());
        view_.undo();
    }
}

}  // namespace
}  // namespace vexa

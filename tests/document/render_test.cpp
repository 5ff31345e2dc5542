#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "document/row_renderer.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

// The colours of a row's cells, one sign a cell: "." plain, "M" marked.
std::string Colours(const ViewRow& row) {
    std::string signs;
    for (const CellRun& run : row.runs) {
        EXPECT_EQ(run.start, static_cast<std::int32_t>(signs.size())) << "runs leave no gap";
        const bool marked = run.background == ColourElement::MarkingBackground;
        EXPECT_EQ(run.text, marked ? ColourElement::MarkingText : ColourElement::DefaultText);
        signs.append(static_cast<std::size_t>(run.length), marked ? 'M' : '.');
    }
    return signs;
}

class Render : public testing::Test {
  protected:
    Render() {
        document_.newEmpty();
        const char* texts[] = {"abcdef", "a\tb\tc", "", "xyz"};
        for (int i = 0; i < 4; ++i)
            document_.lines().put(document_.makeLine(texts[i]), i);
    }
    void mark(MarkMode mode, int line1, int column1, int line2, int column2) {
        document_.marked() = {
            mode, true, {LineIndex(line1), DisplayColumn(column1)}, {LineIndex(line2), DisplayColumn(column2)}};
    }
    ViewRow row(int line, int left = 0, int columns = 12) const {
        return RenderRow(document_, LineIndex(line), DisplayColumn(left), columns);
    }

    test::RecordingNotices notices_;
    EditorOptions options_;
    TextDocument document_{options_, notices_};
};

TEST_F(Render, CellsAreCutAtTheWindowsEdgesAndTabsExpanded) {
    EXPECT_EQ(row(0).cells, "abcdef");
    EXPECT_EQ(row(0, 2, 3).cells, "cde");
    EXPECT_EQ(row(0, 6).cells, "");
    EXPECT_EQ(row(1).cells, "a   b   c");
    EXPECT_EQ(row(1, 2, 5).cells, "  b  ");
    EXPECT_EQ(row(1, 3, 5).cells, " b   ");
    EXPECT_EQ(row(99999).cells, "");
    EXPECT_EQ(Colours(row(99999)), "............");
}

TEST_F(Render, WholeLinesAreMarkedToTheEdge) {
    mark(MarkMode::Lines, 1, 5, 2, 0);
    EXPECT_EQ(Colours(row(0)), "............");
    EXPECT_EQ(Colours(row(1)), "MMMMMMMMMMMM");
    EXPECT_EQ(Colours(row(2)), "MMMMMMMMMMMM");
    EXPECT_EQ(Colours(row(3)), "............");
}

TEST_F(Render, AStreamIsMarkedWithItsLineEnds) {
    mark(MarkMode::Stream, 0, 2, 3, 1);
    EXPECT_EQ(Colours(row(0)), "..MMMMM.....");
    EXPECT_EQ(Colours(row(0, 4)), "MMM.........");
    EXPECT_EQ(Colours(row(2)), "M...........");
    EXPECT_EQ(Colours(row(3)), "M...........");
    mark(MarkMode::Stream, 0, 1, 0, 3);
    EXPECT_EQ(Colours(row(0)), ".MM.........");
}

TEST_F(Render, AColumnIsMarkedOnEveryLine) {
    mark(MarkMode::Column, 0, 3, 3, 7);
    for (int line = 0; line < 4; ++line)
        EXPECT_EQ(Colours(row(line)), "...MMMM.....") << line;
    EXPECT_EQ(Colours(row(0, 5)), "MM..........");
}

}  // namespace
}  // namespace vexa

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "document/document_session.h"
#include "document/view/row_renderer.h"

namespace vexa {
namespace {

// The colours of a row's cells, one sign a cell: "M" marked, "." plain, else the first letter of the element.
std::string Colours(const ViewRow& row) {
    std::string signs;
    const CellRun* before = nullptr;
    for (const CellRun& run : row.runs) {
        EXPECT_EQ(run.start, static_cast<std::int32_t>(signs.size())) << "runs leave no gap";
        EXPECT_FALSE(before && before->text == run.text && before->background == run.background) << "runs are joined";
        const bool marked = run.background == ColourElement::MarkingBackground;
        EXPECT_EQ(run.text == ColourElement::MarkingText, marked);
        signs.append(static_cast<std::size_t>(run.length), "?c.k?MnpsY"[static_cast<std::size_t>(run.text)]);
        before = &run;
    }
    return signs;
}

class Render : public testing::Test, protected test::DocumentSession {
  protected:
    Render() { fill({"abcdef", "a\tb\tc", "", "xyz"}); }
    void mark(MarkMode mode, int line1, int column1, int line2, int column2) {
        document_.marked() = {
            mode, true, {LineIndex(line1), DisplayColumn(column1)}, {LineIndex(line2), DisplayColumn(column2)}};
    }
    ViewRow row(int line, int left = 0, int columns = 12) const {
        return RenderRow(document_, LineIndex(line), DisplayColumn(left), columns);
    }
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

class ColouredRender : public Render {
  protected:
    ColouredRender() {
        fill({"int\tx=12;", "#if \"a\"", "/* a\tb", "c */ d", "a\tb\tc"});
        document_.setProfile(profile_);
    }
    ExtensionProfile profile_;
};

TEST_F(ColouredRender, TokensHaveTheirColoursAlsoInAWindowThatIsScrolled) {
    EXPECT_EQ(Colours(row(0)), "kkk..YnnY...");
    EXPECT_EQ(Colours(row(0, 2, 6)), "k..Ynn");
    EXPECT_EQ(Colours(row(0, 6, 6)), "nnY...");
    EXPECT_EQ(Colours(row(0, 50, 6)), "......");
    EXPECT_EQ(Colours(row(1)), "pppYsss.....");
    EXPECT_EQ(Colours(row(99999)), "............");
}

TEST_F(ColouredRender, ACommentGoesOnInTheNextLines) {
    EXPECT_EQ(Colours(row(2)), "ccccccccc...");
    EXPECT_EQ(Colours(row(3)), "ccccY.......");
    EXPECT_EQ(Colours(row(3, 3, 3)), "cY.");
}

TEST_F(ColouredRender, WhatIsMarkedHasTheColoursOfTheMarking) {
    mark(MarkMode::Stream, 0, 1, 0, 6);
    EXPECT_EQ(Colours(row(0)), "kMMMMMnnY...");
    EXPECT_EQ(Colours(row(0, 3, 5)), "MMMnn");
    mark(MarkMode::Lines, 0, 0, 0, 0);
    EXPECT_EQ(Colours(row(0)), "MMMMMMMMMMMM");
    EXPECT_EQ(Colours(row(1)), "pppYsss.....");
}

TEST_F(ColouredRender, WithoutHighlightingTextIsPlainAndMarksAreAsEver) {
    mark(MarkMode::Stream, 0, 1, 0, 6);
    const ViewRow plain = RenderRow(document_, LineIndex(0), DisplayColumn(0), 12, false);
    EXPECT_EQ(Colours(plain), ".MMMMM......");
    EXPECT_EQ(plain.cells, row(0).cells);
}

TEST_F(ColouredRender, AByteZeroEndsTheTokensAndNoCellIsLost) {
    document_.lines().put(document_.makeLine(std::string_view("12\0\"ab", 6)), 0);
    EXPECT_EQ(row(0).cells, std::string("12\0\"ab", 6));
    EXPECT_EQ(Colours(row(0)), "nn..........");
}

}  // namespace
}  // namespace vexa

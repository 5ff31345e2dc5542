#include "ui/lists/list_row.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(ListRow, KindsAndSelectionAreToldApartByColour) {
    const ViewRow error = RenderListRow("a\tb", RowKind::Error, false, {0, 12});
    EXPECT_EQ(error.cells, "a       b");
    EXPECT_EQ(RenderListRow("a\tb", RowKind::Error, false, {7, 12}).cells, " b");
    const ViewRow warning = RenderListRow("a\tb", RowKind::Warning, false, {0, 12});
    const ViewRow plain = RenderListRow("a\tb", RowKind::Plain, false, {0, 12});
    EXPECT_FALSE(error == warning || error == plain || warning == plain);
    EXPECT_EQ(RenderListRow("x", RowKind::Error, true, {0, 9}).runs,
              (std::vector<CellRun>{{0, 9, ColourElement::MarkingText, ColourElement::MarkingBackground}}));
    EXPECT_EQ(ListRowWidth("a\tb"), 9);
}

TEST(ListRow, WhatIsHighlightedStandsOut) {
    const RowPart part{2, 1};
    const auto runs = [&](std::int32_t left, bool hasMarks, bool isSelected = false) {
        return RenderListRow("a\tb", RowKind::Plain, isSelected, {left, 12, hasMarks}, part).runs;
    };
    const CellRun high{8, 1, ColourElement::Keywords};
    EXPECT_EQ(runs(0, false), (std::vector<CellRun>{{0, 8}, high, {9, 3}}));
    EXPECT_EQ(runs(8, false), (std::vector<CellRun>{{0, 1, ColourElement::Keywords}, {1, 11}}));
    EXPECT_EQ(runs(9, false), (std::vector<CellRun>{{0, 12}}));
    EXPECT_EQ(runs(0, true)[1], (CellRun{8, 1, ColourElement::Background, ColourElement::DefaultText}));
    EXPECT_EQ(runs(0, false, true).size(), 1u);
}

TEST(ListRow, WithoutColoursMarksTellTheKindsApart) {
    EXPECT_EQ(RenderListRow("x", RowKind::Error, true, {0, 9, true}).cells, "! x");
    EXPECT_EQ(RenderListRow("x", RowKind::Warning, false, {0, 9, true}).cells, "? x");
    EXPECT_EQ(RenderListRow("x", RowKind::Plain, false, {1, 9, true}).cells, " x");
}

TEST(ListRow, RowsAreSelectedFromWhereTheSelectionBegan) {
    struct Move {
        std::optional<std::size_t> from;
        std::size_t to;
        bool extends;
        std::size_t first;
        std::size_t count;
    };
    const Move moves[] = {{{}, 5, false, 5, 1}, {5, 7, true, 5, 3}, {7, 3, true, 3, 3},
                          {3, 4, false, 4, 1},  {9, 8, true, 8, 2},  // the list itself has gone on to row 9
                          {{}, 2, true, 2, 1},  {1, 6, false, 6, 1}};
    RowSelection selection;
    for (const Move& move : moves) {
        selection.move(move.from, move.to, move.extends);
        const RowSpan span = selection.span(move.to);
        EXPECT_EQ(span.first, move.first) << move.to;
        EXPECT_EQ(span.count, move.count) << move.to;
    }
    selection.move(2, 6, true);
    EXPECT_EQ(selection.span(4).count, 1u) << "the list has selected a row of itself";
    EXPECT_EQ(selection.span({}).count, 0u);
}

TEST(ListRow, KeysMoveTheSelectionWithinTheList) {
    enum Key : unsigned { kPageUp = 0x21, kPageDown, kEnd, kHome, kLeft, kUp, kRight, kDown };
    constexpr std::optional<std::size_t> kNone;
    struct Case {
        Key key;
        std::optional<std::size_t> selected;
        ListExtent extent;
        std::optional<std::size_t> target;
    };
    const Case cases[] = {
        {kDown, kNone, {100, 10}, 0},        {kUp, kNone, {100, 10}, 0},     {kDown, 0, {100, 10}, 1},
        {kDown, 99, {100, 10}, 99},          {kUp, 0, {100, 10}, 0},         {kUp, 5, {100, 10}, 4},
        {kPageDown, 0, {100, 10}, 9},        {kPageDown, 95, {100, 10}, 99}, {kPageUp, 95, {100, 10}, 86},
        {kPageUp, 5, {100, 10}, 0},          {kPageDown, 0, {100, 1}, 1},    {kHome, 50, {1'000'000, 10}, 0},
        {kEnd, 0, {1'000'000, 10}, 999'999}, {kEnd, kNone, {0, 10}, kNone},  {kDown, kNone, {0, 10}, kNone},
        {kLeft, 5, {100, 10}, kNone},
    };
    for (const Case& c : cases)
        EXPECT_EQ(RowAfterKey(c.key, c.selected, c.extent), c.target) << c.key;
}

TEST(ListRow, AWindowMovesAsLittleAsCanBeToShowARow) {
    EXPECT_EQ(TopShowing(5, 10, 20), 5u);
    EXPECT_EQ(TopShowing(29, 10, 20), 10u);
    EXPECT_EQ(TopShowing(30, 10, 20), 11u);
}

}  // namespace
}  // namespace vexa

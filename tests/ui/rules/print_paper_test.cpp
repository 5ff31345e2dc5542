#include "ui/print/print_paper.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

// A sheet of 8 by 10 inches, of which the printer does not reach a quarter of an inch at each edge.
constexpr Paper kSheet{.dotsPerInchX = 600,
                       .dotsPerInchY = 300,
                       .width = 4800,
                       .height = 3000,
                       .reachedLeft = 150,
                       .reachedTop = 75,
                       .reachedWidth = 4500,
                       .reachedHeight = 2850};

TEST(PrintPaper, MarginsCountFromTheSheetsEdges) {
    EXPECT_EQ(TextAreaOf(kSheet, {2540, 1270, 5080, 2540}), (DotArea{450, 75, 3450, 2625}));
}

TEST(PrintPaper, WhatThePrinterDoesNotReachIsNoPlaceForText) {
    EXPECT_EQ(TextAreaOf(kSheet, {0, 0, 0, 0}), (DotArea{0, 0, 4500, 2850}));
}

TEST(PrintPaper, MarginsThatLeaveNothingGiveAnEmptyArea) {
    Paper card = kSheet;
    card.width = 600;
    card.reachedWidth = 300;
    const DotArea area = TextAreaOf(card, {10160, 1270, 10160, 1270});
    EXPECT_EQ(area.right, area.left);
    const DotArea none = TextAreaOf(Paper{}, {});  // a device that says nothing of its paper
    EXPECT_EQ(none, DotArea{});
}

}  // namespace
}  // namespace vexa

#include "framework/scroll_rules.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/case_files.h"

namespace vexa {
namespace {

constexpr test::CaseFile kFiles[] = {
#include "rule_cases.inc"
};

TEST(ScrollRules, RequestsMoveWithinTheText) {
    static const std::vector<std::string> kRequests = {"line-up",    "line-down", "page-up", "page-down", "thumb-drop",
                                                       "thumb-drag", "top",       "bottom",  "end"};
    for (const test::Cells& row : test::RowsOf(kFiles, "scrolling")) {
        const auto request = std::ranges::find(kRequests, row.at(0)) - kRequests.begin();
        const auto number = [&](std::size_t cell) { return std::stoi(row.at(cell)); };
        const int step = row.size() > 6 ? number(6) : 1;
        const ScrollState state{.last = number(1), .page = number(2), .position = number(3), .step = step};
        EXPECT_EQ(ScrollTarget(static_cast<unsigned>(request), state, number(4)), number(5))
            << row.at(0) << " from " << state.position << " of " << state.last;
    }
}

TEST(ScrollRules, ShownBarReachesAWindowBeyondTheText) {
    EXPECT_EQ(Shown({.last = 99, .page = 20, .position = 95}).last, 114);
    EXPECT_EQ(Shown({.last = 99, .page = 20, .position = 50}).last, 99);
}

TEST(ScrollRules, ThumbMovesWhereItWouldLookDifferent) {
    const ScrollState state{.last = 89999, .page = 40, .position = 45010};
    const auto moves = [&](ScrollState to) { return ThumbMoves(state, to, 700); };
    EXPECT_FALSE(moves({.last = 89999, .page = 40, .position = 45011}));  // 128 lines a pixel
    EXPECT_FALSE(moves({.last = 90000, .page = 40, .position = 45010}));
    EXPECT_TRUE(moves({.last = 89999, .page = 40, .position = 45075}));
    EXPECT_TRUE(moves({.last = 89999, .page = 400, .position = 45010}));
    EXPECT_TRUE(moves({.last = 39, .page = 40, .position = 0}));
    // A bar that has nothing to scroll looks the same for every text.
    EXPECT_FALSE(ThumbMoves({.last = 3, .page = 40, .position = 0}, {.last = 39, .page = 40, .position = 0}, 700));
    EXPECT_TRUE(ThumbMoves({.last = 39, .page = 40, .position = 0}, {.last = 40, .page = 40, .position = 0}, 700));
}

TEST(ScrollRules, SmallWheelStepsAddUpToLines) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.add(-120, 3), 3);
    EXPECT_EQ(wheel.add(120, 3), -3);
    EXPECT_EQ(wheel.add(-30, 3), 0);
    EXPECT_EQ(wheel.add(-30, 3), 1);
    EXPECT_EQ(wheel.add(-30, 3), 1);
    EXPECT_EQ(wheel.add(-30, 3), 1);
    // Turning back starts afresh.
    EXPECT_EQ(wheel.add(-30, 3), 0);
    EXPECT_EQ(wheel.add(30, 3), 0);
    EXPECT_EQ(wheel.add(30, 3), -1);
}

}  // namespace
}  // namespace vexa

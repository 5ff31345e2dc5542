#include "ui/document/scroll_rules.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

enum Request : unsigned { kLineUp, kLineDown, kPageUp, kPageDown, kThumbDrop, kThumbDrag, kTop, kBottom, kEnd };

TEST(ScrollRules, RequestsMoveWithinTheText) {
    struct Case {
        Request request;
        ScrollState state;
        std::int32_t track;
        std::int32_t target;
    };
    const ScrollState middle{.last = 99, .page = 20, .position = 50};
    const ScrollState top{.last = 99, .page = 20, .position = 0};
    const ScrollState bottom{.last = 99, .page = 20, .position = 80};
    const Case cases[] = {
        {kLineUp, middle, 0, 49},
        {kLineDown, middle, 0, 51},
        {kPageUp, middle, 0, 31},
        {kPageDown, middle, 0, 69},
        {kThumbDrag, middle, 70000, 80},
        {kThumbDrop, middle, 12, 12},
        {kTop, middle, 0, 0},
        {kBottom, middle, 0, 80},
        {kEnd, middle, 7, 50},
        {kLineUp, top, 0, 0},
        {kPageUp, top, 0, 0},
        {kLineDown, bottom, 0, 80},
        {kPageDown, bottom, 0, 80},
        {kThumbDrag, middle, -3, 0},
        // More positions than 16 bits count.
        {kThumbDrag, {.last = 90000, .page = 20, .position = 0}, 80000, 80000},
        // A text shorter than the window, and a window scrolled beyond the text.
        {kPageDown, {.last = 4, .page = 20, .position = 0}, 0, 0},
        {kLineDown, {.last = 99, .page = 20, .position = 95}, 0, 95},
        {kLineUp, {.last = 99, .page = 20, .position = 95}, 0, 80},
        // A window of one line still moves by whole lines.
        {kPageDown, {.last = 9, .page = 1, .position = 3}, 0, 4},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ScrollTarget(c.request, c.state, c.track), c.target)
            << c.request << " from " << c.state.position << " of " << c.state.last;
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

#include "ui/frame/tab_rules.h"

#include <gtest/gtest.h>

#include <string>

namespace vexa {
namespace {

constexpr char kWindows[] = "abcdef";

// Each window is known by a letter of its own.
std::vector<const void*> WindowsOf(const std::string& letters) {
    std::vector<const void*> windows;
    for (const char letter : letters)
        windows.push_back(kWindows + (letter - 'a'));
    return windows;
}

std::string LettersOf(const std::vector<const void*>& windows) {
    std::string letters;
    for (const void* window : windows)
        letters += *static_cast<const char*>(window);
    return letters;
}

// A letter is used; ">" and "<" go on to the next and the one before, "." ends the walk; "-" closes the letter behind,
// "+" opens it.
TEST(UseOrder, WalksFromTheWindowUsedLastAndOnlyItsEndCounts) {
    struct Case {
        const char* open;
        const char* steps;
        const char* reached;
    };
    const Case cases[] = {
        {"abc", ">", "b"},       {"abc", "bc>", "b"},      {"abc", "abc>>", "a"},   {"abc", "abc>>>", "c"},
        {"abc", "abc<", "a"},    {"abc", "abc>.>", "c"},   {"abc", "abc>>.>", "c"}, {"abc", "abc>>.>>", "b"},
        {"abc", "abc>a>", "a"},  {"abc", "abc>.>.>", "b"}, {"abc", "abc-b>", "a"},  {"abc", "abc>-a>", "b"},
        {"abc", "abc>+d>", "c"}, {"a", "a>", "a"},         {"", ">", "-"},
    };
    for (const Case& c : cases) {
        UseOrder order;
        std::string open = c.open;
        std::string reached;
        order.take(WindowsOf(open));
        for (const char* step = c.steps; *step; ++step) {
            if (*step == '>' || *step == '<') {
                const void* at = order.step(*step == '<');
                reached = at ? LettersOf({at}) : "-";
            } else if (*step == '.') {
                order.endWalk();
            } else if (*step == '-' || *step == '+') {
                if (*step++ == '-') {
                    std::erase(open, *step);
                } else {
                    open += *step;
                }
                order.take(WindowsOf(open));
            } else {
                order.use(kWindows + (*step - 'a'));
            }
        }
        EXPECT_EQ(reached, c.reached) << c.steps;
    }
}

TEST(TabLayout, ScrollsByTabsAndLeavesNoRoomEmptyThatATabCouldFill) {
    TabLayout layout;
    layout.take({50, 30, 40, 60}, 100);
    struct Case {
        int scroll;
        int bringIn;  // a tab; none below 0
        std::size_t first;
        bool hasMore;
    };
    const Case cases[] = {
        {0, -1, 0, true}, {1, -1, 1, true}, {9, -1, 2, false}, {-1, -1, 1, true}, {-9, -1, 0, true},
        {0, 2, 1, true},  {0, 3, 2, false}, {0, 1, 1, true},   {0, 0, 0, true},
    };
    for (const Case& c : cases) {
        layout.scroll(c.scroll);
        if (c.bringIn >= 0) layout.bringIn(static_cast<std::size_t>(c.bringIn));
        EXPECT_EQ(layout.first(), c.first) << c.scroll << ' ' << c.bringIn;
        EXPECT_EQ(layout.hasMoreAtRight(), c.hasMore) << c.scroll << ' ' << c.bringIn;
    }
    layout.bringIn(3);
    layout.take({50, 30, 40, 60}, 130);
    EXPECT_EQ(layout.first(), 1u) << "the room has grown";
    layout.take({50, 30}, 130);
    EXPECT_EQ(layout.first(), 0u);
    layout.take({200}, 100);
    layout.scroll(1);
    EXPECT_EQ(layout.first(), 0u) << "one that is too wide stays";
    layout.take({}, 100);
    EXPECT_EQ(layout.at(0), std::nullopt);
}

TEST(TabLayout, ATabIsFoundWhereItLies) {
    TabLayout layout;
    layout.take({50, 30, 40, 60}, 100);
    layout.scroll(1);
    EXPECT_EQ(layout.spanOf(0), (TabLayout::Span{-50, 0}));
    EXPECT_EQ(layout.spanOf(2), (TabLayout::Span{30, 70}));
    const std::pair<int, std::optional<std::size_t>> cases[] = {
        {-1, std::nullopt}, {0, 1}, {29, 1}, {30, 2}, {69, 2}, {70, 3}, {129, 3}, {130, std::nullopt}};
    for (const auto& [x, tab] : cases)
        EXPECT_EQ(layout.at(x), tab) << x;
}

TEST(TabLayout, ADraggedTabGoesWhereItThenLiesUnderTheMouse) {
    TabLayout layout;
    layout.take({50, 30, 40}, 200);
    struct Case {
        std::size_t dragged;
        int x;
        std::optional<std::size_t> to;
    };
    const Case cases[] = {{0, 49, {}}, {0, 55, 1}, {0, 85, 2},  {0, 130, {}}, {0, -1, {}}, {1, 45, {}},
                          {1, 29, 0},  {2, 65, 1}, {2, 49, {}}, {2, 39, 0},   {1, 95, 2},  {1, 85, {}}};
    for (const Case& c : cases)
        EXPECT_EQ(layout.dropAt(c.x, c.dragged), c.to) << c.dragged << " at " << c.x;
}

}  // namespace
}  // namespace vexa

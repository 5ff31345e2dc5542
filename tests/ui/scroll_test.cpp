// Scroll bars and the wheel. What is seen after scrolling is found out by clicking on its first row.
#include <gtest/gtest.h>

#include <cstdio>

#include "ui/editor.h"
#include "ui/pixels.h"

namespace vexa::test {
namespace {

class ScrollTest : public ::testing::Test {
  protected:
    ScrollTest() {
        std::string text;
        for (int i = 1; i <= 90000; ++i)
            text += "line " + std::to_string(i) + "\r\n";
        folder.put("a.txt", text);
    }
    // The line that the first row shows.
    static int topLine(const Editor& editor) {
        editor.click({0, 2});
        // The click is over when the keys behind it have been: they go to the second line and back.
        editor.keys("{Alt+I}");
        EXPECT_TRUE(editor.showsMode("OVR"));
        editor.keys("{Alt+I}");
        EXPECT_TRUE(editor.showsMode("INS"));
        return lineOf(editor);
    }
    static int lineOf(const Editor& editor) {
        int line = 0;
        std::sscanf(editor.position().c_str(), " L:%d", &line);
        return line;
    }
    // What the window shows when many looks in a row have shown the same.
    static std::vector<std::uint32_t> settledPixels(HWND window) {
        constexpr int kLooks = 20;
        std::vector<std::uint32_t> pixels;
        int same = 0;
        EXPECT_TRUE(WaitUntil([&] {
            auto now = PixelsOf(window);
            same = now == pixels ? same + 1 : 0;
            pixels = std::move(now);
            return same == kLooks;
        }));
        return pixels;
    }
    static void scroll(const Editor& editor, UINT message, WORD request) {
        PostMessageA(editor.activePane(), message, request, 0);
    }

    TestFolder folder;
};

TEST_F(ScrollTest, VerticalBarMovesByLinesPagesAndToBothEnds) {
    const Editor editor(folder, {"a.txt"});
    ASSERT_EQ(topLine(editor), 1);
    scroll(editor, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(topLine(editor), 2);
    scroll(editor, WM_VSCROLL, SB_PAGEDOWN);
    const int page = topLine(editor);
    EXPECT_GT(page, 10);
    scroll(editor, WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ(topLine(editor), 2);
    scroll(editor, WM_VSCROLL, SB_BOTTOM);
    const int bottom = topLine(editor);
    EXPECT_GT(bottom, 89900);
    EXPECT_LE(bottom, 90000);
    editor.takePicture("scrolled-to-end");
    scroll(editor, WM_VSCROLL, SB_TOP);
    EXPECT_EQ(topLine(editor), 1);
}

// Rows that stay in sight are moved and the others drawn; at a jump to the other end of the text all are drawn.
TEST_F(ScrollTest, RowsThatAreMovedLookAsIfTheyWereDrawn) {
    const Editor editor(folder, {"a.txt"});
    const HWND window = editor.activeDocument();
    struct Case {
        const char* caretKey;  // puts the caret, which blinks, out of sight
        WORD jump;
        WORD away;
        WORD back;
    };
    const Case cases[] = {{"{Ctrl+Home}", SB_BOTTOM, SB_LINEUP, SB_LINEDOWN},
                          {"{Ctrl+End}", SB_TOP, SB_LINEDOWN, SB_LINEUP}};
    for (const Case& c : cases) {
        editor.keys(c.caretKey);
        ASSERT_TRUE(WaitUntil([&] { return (lineOf(editor) == 1) == (c.jump == SB_BOTTOM); }));
        scroll(editor, WM_VSCROLL, c.jump);
        const auto drawn = settledPixels(window);
        for (int i = 0; i < 3; ++i)
            scroll(editor, WM_VSCROLL, c.away);
        ASSERT_TRUE(WaitUntil([&] { return PixelsOf(window) != drawn; }));
        for (int i = 0; i < 3; ++i)
            scroll(editor, WM_VSCROLL, c.back);
        EXPECT_TRUE(WaitUntil([&] { return PixelsOf(window) == drawn; })) << c.caretKey;
    }
}

TEST_F(ScrollTest, ThumbCanBeDraggedBeyondTheSixtyFourThousandthLine) {
    const Editor editor(folder, {"a.txt"});
    const HWND pane = editor.activePane();
    RECT client;
    ASSERT_TRUE(GetClientRect(pane, &client));
    // Down the bar at the right of the text, from the thumb at its top to nearly its end.
    const LONG x = client.right + GetSystemMetrics(SM_CXVSCROLL) / 2;
    const LONG top = GetSystemMetrics(SM_CYVSCROLL) + 3;
    editor.drag({{x, top}, {x, top + 10}, {x, client.bottom / 2}, {x, client.bottom * 9 / 10}});
    EXPECT_GT(topLine(editor), 70000);
}

TEST_F(ScrollTest, WheelMovesByLinesAndSmallStepsAddUp) {
    const Editor editor(folder, {"a.txt"});
    UINT lines = 3;
    SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto turn = [&](int delta) {
        PostMessageA(editor.activePane(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
    };
    turn(-120);
    EXPECT_EQ(topLine(editor), 1 + static_cast<int>(lines));
    for (int i = 0; i < 4; ++i)
        turn(-30);
    EXPECT_EQ(topLine(editor), 1 + 2 * static_cast<int>(lines));
    turn(120);
    EXPECT_EQ(topLine(editor), 1 + static_cast<int>(lines));
}

TEST_F(ScrollTest, DraggingBelowTheWindowScrollsOnAndMarks) {
    const Editor editor(folder, {"a.txt"});
    RECT client;
    ASSERT_TRUE(GetClientRect(editor.activePane(), &client));
    editor.drag({{0, 2}, {0, client.bottom + 5}}, [&] { return WaitUntil([&] { return lineOf(editor) > 100; }); });
    editor.keys("{Del}");
    ASSERT_TRUE(editor.hasCaption("*"));
    EXPECT_TRUE(editor.showsPosition(1, 1));  // what was marked from the first line on has gone
}

TEST_F(ScrollTest, HorizontalBarMovesByColumnsAndTheCaretBringsTheTextBack) {
    const Editor editor(folder, {"a.txt"});
    for (int i = 0; i < 5; ++i)
        scroll(editor, WM_HSCROLL, SB_LINERIGHT);
    editor.click({0, 2});
    EXPECT_TRUE(editor.showsPosition(1, 6));
    editor.keys("{Home}{Home}x");
    EXPECT_TRUE(editor.showsPosition(1, 2));
    editor.click({0, 2});
    EXPECT_TRUE(editor.showsPosition(1, 1));
}

}  // namespace
}  // namespace vexa::test

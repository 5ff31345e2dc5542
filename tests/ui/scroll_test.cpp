// What is drawn while the text scrolls, and scrolling by dragging.
#include <gtest/gtest.h>

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
        ASSERT_TRUE(WaitUntil([&] { return (editor.line() == 1) == (c.jump == SB_BOTTOM); }));
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
    editor.click({0, 2});
    EXPECT_TRUE(WaitUntil([&] { return editor.line() > 70000; })) << editor.position();
}

TEST_F(ScrollTest, DraggingBelowTheWindowScrollsOnAndMarks) {
    const Editor editor(folder, {"a.txt"});
    RECT client;
    ASSERT_TRUE(GetClientRect(editor.activePane(), &client));
    editor.drag({{0, 2}, {0, client.bottom + 5}}, [&] { return WaitUntil([&] { return editor.line() > 100; }); });
    editor.keys("{Del}");
    ASSERT_TRUE(editor.hasCaption("*"));
    EXPECT_TRUE(editor.showsPosition(1, 1));  // what was marked from the first line on has gone
}

}  // namespace
}  // namespace vexa::test

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
    static void scroll(HWND document, WORD request, int times = 1) {
        const HWND pane = ChildrenOf(document, "PaneWindowCL").at(0);
        for (int i = 0; i < times; ++i)
            PostMessageA(pane, WM_VSCROLL, request, 0);
    }
    // The document windows, of one size and side by side.
    static std::vector<HWND> placedDocuments(const Editor& editor) {
        RECT room{};
        GetClientRect(ChildrenOf(editor.frame(), "MDIClient").at(0), &room);
        const std::vector<HWND> documents = ChildrenOf(editor.frame(), "MDIchildCL");
        const int width = room.right / 2;
        int left = 0;
        for (const HWND document : documents) {
            SetWindowPos(document, nullptr, left, 0, width, room.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
            left += width;
        }
        return documents;
    }
    static void putCaretsAtEnd(const Editor& editor) {
        for (int i = 0; i < 2; ++i) {
            const HWND before = editor.activeDocument();
            editor.keys("{Alt+N}");
            ASSERT_TRUE(WaitUntil([&] { return editor.activeDocument() != before && editor.line() == 1; }));
            editor.keys("{Ctrl+End}");
            ASSERT_TRUE(WaitUntil([&] { return editor.line() > 1; }));
        }
    }
    static bool lookAlike(const std::vector<HWND>& windows) { return PixelsOf(windows[0]) == PixelsOf(windows[1]); }

    TestFolder folder;
};

// Rows that stay in sight are moved and the others drawn; at a jump to the other end of the text all are drawn. Two
// windows on one text, of which one only jumps, look alike whenever both have drawn what they were told to.
TEST_F(ScrollTest, RowsThatAreMovedLookAsIfTheyWereDrawn) {
    folder.put("vexa.INI", "[Editor Options]\r\nMultipleCopies=1\r\nDisplayMode=1\r\n");
    const Editor editor(folder, {"a.txt", "a.txt"});
    const std::vector<HWND> windows = placedDocuments(editor);
    ASSERT_EQ(windows.size(), 2u);
    struct Case {
        WORD jump;  // to where the caret, which blinks, is not
        WORD away;
        WORD back;
    };
    const Case cases[] = {{SB_BOTTOM, SB_LINEUP, SB_LINEDOWN}, {SB_TOP, SB_LINEDOWN, SB_LINEUP}};
    for (const Case& c : cases) {
        if (c.jump == SB_TOP) putCaretsAtEnd(editor);
        scroll(windows[0], c.jump);
        ASSERT_TRUE(WaitUntil([&] { return !lookAlike(windows); })) << c.jump;
        scroll(windows[1], c.jump);
        ASSERT_TRUE(WaitUntil([&] { return lookAlike(windows); })) << c.jump;
        scroll(windows[1], c.away, 3);
        ASSERT_TRUE(WaitUntil([&] { return !lookAlike(windows); })) << c.jump;
        scroll(windows[1], c.back, 3);
        EXPECT_TRUE(WaitUntil([&] { return lookAlike(windows); })) << c.jump;
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
    EXPECT_TRUE(editor.drag({{0, 2}, {0, client.bottom + 5}}, [&] { return editor.line() > 100; }))
        << editor.position();
    editor.keys("{Del}");
    ASSERT_TRUE(editor.hasCaption("*"));
    EXPECT_TRUE(editor.showsPosition(1, 1));  // what was marked from the first line on has gone
}

}  // namespace
}  // namespace vexa::test

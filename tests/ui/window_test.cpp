// The document windows inside the frame.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

class WindowTest : public ::testing::Test {
  protected:
    WindowTest() {
        for (const char* name : {"a.txt", "b.txt", "c.txt"})
            folder.put(name, std::string(name) + "\r\n");
    }
    void setDisplayMode(int mode) {
        folder.put("vexa.INI", "[Editor Options]\r\nDisplayMode=" + std::to_string(mode) + "\r\n");
    }
    static std::vector<RECT> places(const Editor& editor) {
        std::vector<RECT> places;
        for (const HWND window : ChildrenOf(editor.frame(), "MDIchildCL")) {
            places.emplace_back();
            GetWindowRect(window, &places.back());
        }
        return places;
    }

    TestFolder folder;
};

TEST_F(WindowTest, WindowsAreArrangedByTheWindowMenu) {
    setDisplayMode(9);
    const Editor editor(folder, {"a.txt", "b.txt"});
    ASSERT_TRUE(WaitUntil([&] { return editor.documents().size() == 2; }));
    EXPECT_EQ(editor.caption(), "Vexa 95");
    editor.command(CommandId::TileHorizontally);
    EXPECT_TRUE(WaitUntil([&] {
        const auto at = places(editor);
        return at[0].left == at[1].left && (at[0].bottom <= at[1].top || at[1].bottom <= at[0].top);
    }));
    editor.takePicture("tiled");
    editor.command(CommandId::TileVertically);
    EXPECT_TRUE(WaitUntil([&] {
        const auto at = places(editor);
        return at[0].top == at[1].top && (at[0].right <= at[1].left || at[1].right <= at[0].left);
    }));
    editor.command(CommandId::Cascade);
    EXPECT_TRUE(WaitUntil([&] {
        const auto at = places(editor);
        return at[0].left != at[1].left && at[0].top != at[1].top;
    }));
    editor.takePicture("cascaded");
}

TEST_F(WindowTest, DisplayModeDecidesHowNewWindowsAreShown) {
    setDisplayMode(2);
    {
        const Editor editor(folder, {"a.txt"});
        EXPECT_TRUE(WaitUntil([&] {
            const auto windows = ChildrenOf(editor.frame(), "MDIchildCL");
            return windows.size() == 1 && IsIconic(windows[0]);
        }));
        editor.takePicture("minimised");
    }
    setDisplayMode(1);
    const Editor editor(folder, {"a.txt", "b.txt"});
    EXPECT_TRUE(WaitUntil([&] {
        const auto at = places(editor);
        RECT common;
        return at.size() == 2 && !IntersectRect(&common, &at[0], &at[1]);
    }));
}

TEST_F(WindowTest, ClickingInAWindowMakesItTheActiveOne) {
    setDisplayMode(1);
    const Editor editor(folder, {"a.txt", "b.txt"});
    ASSERT_TRUE(WaitUntil([&] { return editor.documents().size() == 2 && editor.activePane(); }));
    const HWND first = editor.activeDocument();
    HWND other = nullptr;
    for (const HWND window : ChildrenOf(editor.frame(), "MDIchildCL"))
        other = window == first ? other : window;
    // Seen from the active pane, the other one lies outside it.
    POINT place{3, 3};
    MapWindowPoints(ChildrenOf(other, "PaneWindowCL").at(0), editor.activePane(), &place, 1);
    editor.click(place);
    EXPECT_TRUE(WaitUntil([&] { return editor.activeDocument() == other; }));
    editor.keys("x");
    EXPECT_TRUE(WaitUntil([&] { return NameShownBy(other).ends_with(" *"); }));
    EXPECT_FALSE(NameShownBy(first).ends_with(" *"));
}

TEST_F(WindowTest, ResizingTheFrameResizesWhatIsInIt) {
    const Editor editor(folder, {"a.txt"});
    RECT before, after;
    GetWindowRect(editor.activePane(), &before);
    SetWindowPos(editor.frame(), nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(WaitUntil([&] {
        GetWindowRect(editor.activePane(), &after);
        return after.right - after.left < before.right - before.left && after.bottom < before.bottom;
    }));
    editor.takePicture("small-frame");
    SetWindowPos(editor.frame(), nullptr, 0, 0, 60, 40, SWP_NOMOVE | SWP_NOZORDER);  // no room for anything
    editor.keys("x");
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));
}

TEST_F(WindowTest, LineNumbersInTheMarginTakeRoomFromTheText) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{Alt+4}{Down}x{Enter}");
    ASSERT_TRUE(editor.showsPosition(3, 1));
    editor.takePicture("margin");
    editor.command(CommandId::ChangeOptions);
    const HWND dialog = editor.dialog("Editor Options");
    ASSERT_TRUE(dialog);
    RECT before;
    GetClientRect(editor.activePane(), &before);
    SendMessageA(GetDlgItem(dialog, IDC_LINE_NUMBERS), BM_CLICK, 0, 0);
    ASSERT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(WaitUntil([&] {
        RECT after;
        GetClientRect(editor.activePane(), &after);
        return after.right > before.right;
    }));
}

}  // namespace
}  // namespace vexa::test

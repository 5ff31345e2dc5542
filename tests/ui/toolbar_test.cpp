// The row of buttons under the menu.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "ui/editor.h"

namespace vexa::test {
namespace {

HWND ToolBarOf(const Editor& editor) {
    return ChildrenOf(editor.frame(), TOOLBARCLASSNAMEA).at(0);
}

bool IsButtonEnabled(HWND bar, int id) {
    return SendMessageA(bar, TB_ISBUTTONENABLED, static_cast<WPARAM>(id), 0) != 0;
}

// The middle of the first button, as seen from the active pane.
POINT FirstButton(const Editor& editor) {
    const HWND bar = ToolBarOf(editor);
    const auto size = static_cast<DWORD>(SendMessageA(bar, TB_GETBUTTONSIZE, 0, 0));
    POINT middle{LOWORD(size) / 2, HIWORD(size) / 2};
    MapWindowPoints(bar, editor.activePane(), &middle, 1);
    return middle;
}

TEST(ToolBar, GivesItsRoomToTheText) {
    const TestFolder folder;
    const Editor editor(folder);
    RECT high, low;
    GetWindowRect(editor.activePane(), &low);
    editor.command(CommandId::ToggleToolBar);
    EXPECT_TRUE(WaitUntil([&] {
        GetWindowRect(editor.activePane(), &high);
        return high.top < low.top;
    }));
    editor.takePicture("no-toolbar");
}

TEST(ToolBar, ButtonsAreGreyedWithWhatTheyNeed) {
    const TestFolder folder;
    const Editor editor(folder);
    const HWND bar = ToolBarOf(editor);
    const int needDocument[] = {203, 300, 301};
    const int needNothing[] = {200, 201, 425, 426, 701};
    for (const int id : needDocument)
        EXPECT_TRUE(IsButtonEnabled(bar, id)) << id;
    editor.command(CommandId::FileClose);
    EXPECT_TRUE(WaitUntil([&] { return !IsButtonEnabled(bar, 203); }));
    for (const int id : needDocument)
        EXPECT_FALSE(IsButtonEnabled(bar, id)) << id;
    for (const int id : needNothing)
        EXPECT_TRUE(IsButtonEnabled(bar, id)) << id;
    editor.takePicture("toolbar-without-document");
    editor.command(CommandId::FileNew);
    EXPECT_TRUE(WaitUntil([&] { return IsButtonEnabled(bar, 203); }));
}

TEST(ToolBar, ButtonRunsItsCommandAndSaysItsName) {
    const TestFolder folder;
    folder.put("a.txt", "a\r\n");
    const Editor editor(folder, {"a.txt"});
    ASSERT_TRUE(editor.hasCaption("a.txt]"));
    editor.drag({FirstButton(editor)});
    EXPECT_TRUE(editor.hasCaption("[untitled.txt]"));
    editor.keys("x");  // the focus has stayed with the text
    EXPECT_TRUE(editor.hasCaption("[untitled.txt *]"));
    EXPECT_TRUE(editor.pointUntil({FirstButton(editor).x + 1, FirstButton(editor).y},
                                  [&] { return editor.hasTopWindow(TOOLTIPS_CLASSA); }));
    editor.takePicture("tooltip");
}

}  // namespace
}  // namespace vexa::test

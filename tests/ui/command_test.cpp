// Which commands run, and what those that do not run say.
#include <gtest/gtest.h>

#include <cstdlib>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

constexpr const char* kNoOpenFile = "Action can only be performed on an open file!";

TEST(Command, WithoutADocumentKeysAndCommandsSaySo) {
    const TestFolder folder;
    const Editor editor(folder);
    editor.command(CommandId::FileClose);
    ASSERT_TRUE(WaitUntil([&] { return editor.documents().empty(); }));
    editor.keys("{Alt+W}");  // its menu item is greyed, but the key is told why
    EXPECT_TRUE(editor.showsMessage(kNoOpenFile));
    editor.takePicture("no-open-file");
    editor.command(CommandId::FileNew);
    ASSERT_TRUE(editor.hasCaption("[untitled.txt]"));
    editor.keys("x");
    EXPECT_TRUE(editor.showsMessage(""));
    EXPECT_TRUE(editor.hasCaption("[untitled.txt *]"));
}

TEST(Command, MenusOpenByKeysAndShowHelpInTheStatusBar) {
    const TestFolder folder;
    const Editor editor(folder);
    editor.keys("{Alt+F}{Down*2}");
    EXPECT_TRUE(editor.showsMessage("Close the current document"));
    editor.takePicture("file-menu");
    editor.keys("{Esc*2}");
    EXPECT_TRUE(editor.showsMessage(""));
    editor.keys("{Alt+V}");
    EXPECT_TRUE(WaitUntil([&] { return editor.message() != ""; }));
    editor.takePicture("view-menu");
    editor.keys("{Esc*2}");
    editor.keys("x");
    EXPECT_TRUE(editor.hasCaption("*"));
}

TEST(Command, TextHasAPopupMenu) {
    const TestFolder folder;
    const Editor editor(folder);
    for (const LPARAM place : {MAKELPARAM(200, 200), LPARAM{-1}}) {  // the mouse, and the keyboard's menu key
        PostMessageA(editor.activePane(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(editor.activePane()), place);
        ASSERT_TRUE(editor.hasPopupMenu());
        editor.takePicture("popup-menu");
        editor.keys("{Esc}");
    }
    editor.keys("x");
    EXPECT_TRUE(editor.hasCaption("*"));
}

TEST(Command, KeysWithoutAMenuItemMoveInTheDocument) {
    const TestFolder folder;
    std::string text;
    for (int i = 0; i < 500; ++i)
        text += "line\r\n";
    folder.put("a.txt", text);
    const Editor editor(folder, {"a.txt"});
    editor.keys("{Ctrl+End}");
    EXPECT_TRUE(editor.showsPosition(500, 5));
    editor.keys("{Ctrl+Home}");
    EXPECT_TRUE(editor.showsPosition(1, 1));
}

TEST(Command, AboutBoxNamesTheProgram) {
    const TestFolder folder;
    const Editor editor(folder);
    MoveWindow(editor.frame(), 30, 20, 500, 400, TRUE);
    editor.command(CommandId::About);
    const HWND box = editor.dialog("About Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_NE(BoxText(box).find("Vexa 95\nVersion "), std::string::npos);
    editor.takePicture("about");
    RECT frame;
    RECT about;
    ASSERT_TRUE(GetWindowRect(editor.frame(), &frame) && GetWindowRect(box, &about));
    EXPECT_LE(std::abs(frame.left + frame.right - about.left - about.right), 2) << "it stands over the frame";
    EXPECT_LE(std::abs(frame.top + frame.bottom - about.top - about.bottom), 2);
    EXPECT_TRUE(Press(box, IDOK));
}

}  // namespace
}  // namespace vexa::test

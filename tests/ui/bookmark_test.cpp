// Bookmarks and the way to a line by its number.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class BookmarkTest : public ::testing::Test {
  protected:
    BookmarkTest() {
        std::string text;
        for (int i = 1; i <= 500; ++i)
            text += "line " + std::to_string(i) + "\r\n";
        folder.put("a.txt", text);
    }
    static std::string fieldOf(HWND dialog) { return TextOf(ChildrenOf(dialog, "Edit").at(0)); }

    TestFolder folder;
};

TEST_F(BookmarkTest, DroppedByAKeyAndJumpedToByTheDialog) {
    {
        const Editor editor(folder, {"a.txt"});
        editor.keys("{Down*9}{Right*3}{Alt+3}");
        EXPECT_TRUE(editor.showsMessage("Bookmark '3' dropped"));
        editor.keys("{Ctrl+End}{Alt+J}");
        const HWND dialog = editor.dialog("Jump to Bookmark");
        ASSERT_TRUE(dialog);
        EXPECT_EQ(fieldOf(dialog), "");
        editor.takePicture("jump-to-bookmark");
        editor.keys("12{Enter}");
        EXPECT_TRUE(editor.showsMessage("Vexa only supports bookmarks '0' thru '9'."));
        editor.keys("5{Enter}");  // in place of the number, which is selected again
        EXPECT_TRUE(editor.showsMessage("No bookmark set at this location."));
        EXPECT_EQ(fieldOf(dialog), "5");
        editor.keys("3{Enter}");
        EXPECT_TRUE(editor.showsMessage("At bookmark '3'"));
        EXPECT_TRUE(editor.showsPosition(10, 1));
        EXPECT_FALSE(editor.hasDialog());
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    EXPECT_NE(folder.get("vexa.INI").find("[Bookmark]\r\nNumber=3\r\n"), std::string::npos);
    const Editor again(folder);
    again.keys("{Alt+J}");
    const HWND dialog = again.dialog("Jump to Bookmark");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(fieldOf(dialog), "3");
}

TEST_F(BookmarkTest, GotoLineReachesEveryLineAndRemembersTheLast) {
    const Editor editor(folder, {"a.txt"});
    const auto go = [&](const std::string& number) {
        editor.keys("{Alt+G}");
        if (editor.dialog("Goto Line")) editor.keys(number + "{Enter}");
    };
    go("250");
    EXPECT_TRUE(editor.showsPosition(250, 1));
    editor.takePicture("goto-line-centred");
    editor.keys("{Alt+G}");
    const HWND dialog = editor.dialog("Goto Line");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(fieldOf(dialog), "250");
    editor.takePicture("goto-line");
    editor.keys("{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    go("0");
    EXPECT_TRUE(editor.showsPosition(1, 1));
    go("40");
    EXPECT_TRUE(editor.showsPosition(40, 1));
    go("-4");
    EXPECT_TRUE(editor.showsPosition(1, 1));
    go("999999999");  // the last line for which there is room
    EXPECT_TRUE(WaitUntil([&] { return editor.position() >= " L:00500"; }));
    editor.keys("x{Ctrl+Z}{Ctrl+Home}");
    EXPECT_TRUE(editor.showsPosition(1, 1));
}

TEST_F(BookmarkTest, DialogStaysWhereItWasPut) {
    const Editor editor(folder, {"a.txt"});
    RECT place, again;
    editor.keys("{Alt+G}");
    HWND dialog = editor.dialog("Goto Line");
    ASSERT_TRUE(dialog);
    GetWindowRect(dialog, &place);
    SetWindowPos(dialog, nullptr, place.left + 60, place.top - 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    GetWindowRect(dialog, &place);
    ASSERT_TRUE(Press(dialog, IDCANCEL));
    editor.keys("{Alt+G}");
    ASSERT_TRUE(dialog = editor.dialog("Goto Line"));
    GetWindowRect(dialog, &again);
    EXPECT_TRUE(EqualRect(&place, &again));
}

}  // namespace
}  // namespace vexa::test

// Typing, marking, undoing and saving as a user does it.
#include <gtest/gtest.h>

#include "ui/editor.h"

namespace vexa::test {
namespace {

TEST(Edit, TypingSplittingJoiningAndDeletingABlockCanBeUndoneRedoneAndSaved) {
    const TestFolder folder;
    const std::string original = "first\r\nsecond\r\nthird\r\nfourth\r\n";
    folder.put("a.txt", original);
    const Editor editor(folder, {"a.txt"});
    ASSERT_TRUE(editor.hasCaption("a.txt]"));
    editor.keys("Typed {Right*2}{Enter}");          // "Typed fi" / "rst"
    editor.keys("{End}{Del}");                      // joins "second" to it
    editor.keys("{Down}{Home}{Alt+L}{Down}{Del}");  // deletes "third" and "fourth"
    ASSERT_TRUE(editor.hasCaption("a.txt *]"));
    editor.takePicture("edit-changed");
    for (int i = 0; i < 60 && editor.message() != "Nothing to undo!"; ++i)
        editor.keys("{Ctrl+Z}");
    ASSERT_TRUE(editor.showsMessage("Nothing to undo!"));
    ASSERT_TRUE(editor.hasCaption("a.txt]"));
    editor.takePicture("edit-nothing-to-undo");
    for (int i = 0; i < 60 && editor.message() != "Nothing to redo!"; ++i)
        editor.keys("{Ctrl+A}");
    ASSERT_TRUE(editor.showsMessage("Nothing to redo!"));
    editor.keys("{Alt+W}");
    ASSERT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_EQ(folder.get("a.txt"), "Typed fi\r\nrstsecond\r\n");
    EXPECT_TRUE(editor.hasCaption("a.txt]"));
}

TEST(Edit, UndoneChangesLeaveTheFileAsItWas) {
    const TestFolder folder;
    const std::string original = "one\r\n\ttwo\r\nthree\r\n";
    folder.put("a.txt", original);
    const Editor editor(folder, {"a.txt"});
    editor.keys("x{Enter}y{Down}{Tab}z");
    ASSERT_TRUE(editor.hasCaption("*"));
    for (int i = 0; i < 60 && editor.message() != "Nothing to undo!"; ++i)
        editor.keys("{Ctrl+Z}");
    ASSERT_TRUE(editor.hasCaption("a.txt]"));
    editor.keys("!{Backspace}{Alt+W}");
    ASSERT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_EQ(folder.get("a.txt"), original);
}

TEST(Edit, KeysWithAltReachTheViewAndLeaveTheMenuAlone) {
    const TestFolder folder;
    folder.put("a.txt", "one\r\ntwo\r\nthree\r\n");
    const Editor editor(folder, {"a.txt"});
    editor.keys("{Alt+D}");         // deletes the line
    editor.keys("{Right}{Alt+K}");  // and "wo"
    editor.keys("{Alt+W}");
    EXPECT_EQ(folder.getOnce("a.txt", "t\r\nthree\r\n"), "t\r\nthree\r\n");
    editor.keys("x{Alt+W}");  // after a command key too, letters are typed
    EXPECT_EQ(folder.getOnce("a.txt", "tx\r\nthree\r\n"), "tx\r\nthree\r\n");
}

TEST(Edit, CommandsOfTheEditMenuWorkOnTheActiveDocument) {
    const TestFolder folder;
    folder.put("a.txt", "one\r\ntwo\r\n");
    const Editor editor(folder, {"a.txt"});
    editor.command(CommandId::SelectAll);
    editor.command(CommandId::Clear);
    editor.keys("new");
    ASSERT_TRUE(editor.showsPosition(1, 4));
    editor.command(CommandId::FileSave);
    EXPECT_EQ(folder.getOnce("a.txt", "new\r\n"), "new\r\n");
}

TEST(Edit, StatusBarShowsModePositionAndNotices) {
    const TestFolder folder;
    folder.put("a.txt", "one\r\n\ttwo\r\n");
    const Editor editor(folder, {"a.txt"});
    EXPECT_TRUE(editor.showsPosition(1, 1));
    EXPECT_TRUE(editor.showsMode("INS"));
    editor.keys("{Alt+I}X");
    EXPECT_TRUE(editor.showsMode("OVR"));
    EXPECT_TRUE(editor.showsPosition(1, 2));
    editor.takePicture("overwrite-caret");
    editor.keys("{Alt+W}");
    EXPECT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_EQ(folder.get("a.txt"), "Xne\r\n\ttwo\r\n");
    editor.keys("{Down}{End}");
    EXPECT_TRUE(editor.showsPosition(2, 8));  // the tab counts as four columns
    EXPECT_TRUE(editor.showsMessage(""));     // a notice stays until the user goes on
}

TEST(Edit, MouseSetsTheCaretAndDraggingMarks) {
    const TestFolder folder;
    folder.put("a.txt", "abcdefgh\r\nijklmnop\r\nqrstuvwx\r\n");
    const Editor editor(folder, {"a.txt"});
    editor.click({0, 40});
    ASSERT_TRUE(WaitUntil([&] { return editor.position() != " L:00001 C:001"; }));
    editor.keys("{Ctrl+Home}");
    ASSERT_TRUE(editor.showsPosition(1, 1));
    editor.drag({{0, 2}, {1, 3}, {1000, 2}}, [&editor] { return editor.showsPosition(1, 9); });
    editor.keys("{Del}");
    ASSERT_TRUE(editor.hasCaption("*"));
    editor.keys("{Alt+W}");
    ASSERT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_EQ(folder.get("a.txt"), "\r\nijklmnop\r\nqrstuvwx\r\n");
}

}  // namespace
}  // namespace vexa::test

// Text that goes between documents and other programs.
#include <gtest/gtest.h>

#include "ui/clipboard.h"
#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class ClipboardTest : public ::testing::Test {
  protected:
    ClipboardTest() {
        folder.put("a.txt", "one 1\r\ntwo 2\r\nthree 3\r\n");
        folder.put("b.txt", "");
    }
    std::string saved(const Editor& editor, const std::string& name, const std::string& expected) const {
        editor.keys("{Alt+W}");
        return folder.getOnce(name, expected);
    }
    static bool clipboardHas(const std::string& text) {
        return WaitUntil([&] { return ClipboardText() == text; });
    }

    TestFolder folder;
};

TEST_F(ClipboardTest, ColumnIsPastedAsAColumnIntoAnotherDocument) {
    const Editor editor(folder, {"b.txt", "a.txt"});
    editor.keys("{Alt+C}{Down*2}{Right*3}{Ctrl+C}");
    EXPECT_TRUE(clipboardHas("one\r\ntwo\r\nthr\r\n"));
    editor.keys("{Alt+N}");
    ASSERT_TRUE(editor.hasCaption("b.txt]"));
    editor.keys("> {Ctrl+V}");
    const std::string expected = "> one\r\n  two\r\n  thr\r\n";
    EXPECT_EQ(saved(editor, "b.txt", expected), expected);
}

TEST_F(ClipboardTest, KeypadCutsTheLineAndPastesItAboveTheCaret) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{KeypadMinus}");
    EXPECT_TRUE(clipboardHas("one 1\r\n"));
    editor.keys("{Down}{Shift+Ins}");
    const std::string expected = "two 2\r\none 1\r\nthree 3\r\n";
    EXPECT_EQ(saved(editor, "a.txt", expected), expected);
    editor.keys("{KeypadPlus}");
    EXPECT_TRUE(clipboardHas("three 3\r\n"));
    EXPECT_EQ(folder.get("a.txt"), expected) << "the key types nothing";
}

TEST_F(ClipboardTest, TextOfAnotherProgramIsPastedAsWholeLinesInOneUndoStep) {
    const Editor editor(folder, {"a.txt"});
    PutForeignText("x\r\ny\r\nz");
    editor.keys("{Down}");
    ASSERT_TRUE(editor.showsPosition(2, 1));
    editor.command(CommandId::Paste);
    EXPECT_TRUE(editor.showsPosition(4, 1));
    const std::string expected = "one 1\r\nx\r\ny\r\ntwo 2\r\nthree 3\r\n";
    EXPECT_EQ(saved(editor, "a.txt", expected), expected);
    editor.keys("{Shift+End}");
    EXPECT_TRUE(editor.showsPosition(4, 6));
    editor.command(CommandId::Cut);
    EXPECT_TRUE(clipboardHas("two 2"));
    editor.keys("{Ctrl+Z}{Ctrl+End}");
    EXPECT_TRUE(editor.showsPosition(5, 8));
}

TEST_F(ClipboardTest, ThousandLinesAreTheMostThatIsCopied) {
    std::string text;
    for (int i = 0; i < 1002; ++i)
        text += "line\r\n";
    folder.put("long.txt", text);
    const Editor editor(folder, {"long.txt"});
    PutForeignText("before");
    editor.keys("{Alt+L}{Ctrl+End}");
    ASSERT_TRUE(editor.showsPosition(1002, 5));
    editor.command(CommandId::Copy);
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_NE(BoxText(box).find("This version can not copy more that 1000 lines"), std::string::npos);
    editor.takePicture("copy-refused");
    ASSERT_TRUE(Press(box, IDOK));
    EXPECT_EQ(ClipboardText(), "before");
    editor.keys("{Up}{Ctrl+X}{Ctrl+Home}");
    EXPECT_TRUE(editor.showsPosition(1, 1));
    EXPECT_EQ(ClipboardText().size(), 1001 * std::string("line\r\n").size());
}

TEST_F(ClipboardTest, ClipboardThatAnotherProgramHoldsLosesNothing) {
    const Editor editor(folder, {"a.txt"});
    {
        const OpenedClipboard held;
        editor.command(CommandId::Cut);
        EXPECT_TRUE(editor.showsMessage("The clipboard is in use by another program!"));
        EXPECT_TRUE(editor.runCommand(CommandId::Paste));
    }
    EXPECT_TRUE(editor.hasCaption("a.txt]")) << "nothing has been cut or pasted";
}

}  // namespace
}  // namespace vexa::test

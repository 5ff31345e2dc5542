// Opening the file that the text at the caret names.
#include <gtest/gtest.h>

#include "ui/editor.h"

namespace vexa::test {
namespace {

class IncludeTest : public ::testing::Test {
  protected:
    IncludeTest() {
        folder.makeDirectory("sub");
        folder.put("sub\\b.h", "one\r\ntwo\r\n#include \"../a.c\"\r\n");
        folder.put("a.c", "#include \"sub/b.h\"\r\nsub\\b.h:2: error\r\n#include <none.h>\r\n\r\n");
    }
    TestFolder folder;
};

TEST_F(IncludeTest, TheKeyOpensTheHeaderAndItsWayBack) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{Ctrl+E}");
    ASSERT_TRUE(editor.hasCaption("b.h]"));
    editor.takePicture("include-opened");
    editor.keys("{Ctrl+End}{Ctrl+E}");
    ASSERT_TRUE(editor.hasCaption("a.c]"));
    EXPECT_EQ(editor.documents().size(), 2u) << "the window that shows the file already";
    editor.keys("{Down}{Ctrl+E}");
    ASSERT_TRUE(editor.hasCaption("b.h]"));
    EXPECT_TRUE(editor.showsPosition(2, 1));
}

TEST_F(IncludeTest, WhatIsNotFoundIsNamed) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{Down*2}{Ctrl+E}");
    EXPECT_TRUE(editor.showsMessage("Unable to find the file 'none.h'."));
    editor.takePicture("include-not-found");
    editor.keys("{Down}");
    EXPECT_TRUE(editor.showsMessage(""));
    editor.command(CommandId::OpenInclude);
    EXPECT_TRUE(editor.showsMessage("No file name at the cursor."));
}

TEST_F(IncludeTest, TheKeyIsPartOfAMacro) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{F7}{Ctrl+E}");
    ASSERT_TRUE(editor.hasCaption("b.h]"));
    editor.keys("{F7}");
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{Ctrl+Minus}");
    ASSERT_TRUE(editor.hasCaption("a.c]"));
    editor.keys("{F8}");
    EXPECT_TRUE(editor.hasCaption("b.h]"));
}

TEST_F(IncludeTest, InADialogTheKeyIsTheFields) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+S}");
    const HWND dialog = editor.dialog("Find");
    ASSERT_TRUE(WaitUntil([&] { return dialog && GetForegroundWindow() == dialog; }));
    editor.keys("{Ctrl+E}{Ctrl+G}{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    EXPECT_TRUE(editor.hasCaption("a.c]"));
    EXPECT_EQ(editor.documents().size(), 1u);
}

}  // namespace
}  // namespace vexa::test

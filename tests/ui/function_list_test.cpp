// The dialog that lists the functions of a document.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

std::string Source() {
    std::string text = "#include <a.h>\r\n\r\n";
    for (const char* name : {"alpha", "beta", "gamma", "betatron", "delta"}) {
        text += std::string("static int ") + name + "(int a)\r\n{\r\n";
        for (int i = 0; i < 17; ++i)
            text += "    a += " + std::to_string(i) + ";\r\n";
        text += "}\r\n";
    }
    return text;  // a function begins at each line 3 + 20 * n
}

LRESULT ChosenRow(HWND dialog) {
    return SendDlgItemMessageA(dialog, IDC_FUNCTIONS, LB_GETCURSEL, 0, 0);
}

LRESULT Rows(HWND dialog) {
    return SendDlgItemMessageA(dialog, IDC_FUNCTIONS, LB_GETCOUNT, 0, 0);
}

class FunctionListTest : public ::testing::Test {
  protected:
    FunctionListTest() {
        folder.put("a.c", Source());
        folder.put("b.txt", "nothing\r\n");
    }
    static HWND openList(const Editor& editor) {
        editor.keys("{Ctrl+G}");
        const HWND dialog = editor.dialog("Functions");
        EXPECT_TRUE(WaitUntil([&] { return dialog && GetForegroundWindow() == dialog; }));
        return dialog;
    }

    TestFolder folder;
};

TEST_F(FunctionListTest, TheFilterNarrowsAndEnterJumps) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{Down*50}{End}");
    ASSERT_TRUE(editor.showsPosition(51, 12));
    const HWND dialog = openList(editor);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(Rows(dialog), 5);
    EXPECT_EQ(ChosenRow(dialog), 2) << "the function that the caret is in";
    editor.takePicture("functions");
    editor.keys("BETA");
    EXPECT_TRUE(WaitUntil([&] { return Rows(dialog) == 2; }));
    EXPECT_EQ(ChosenRow(dialog), 0);
    editor.keys("{Down}");
    EXPECT_TRUE(WaitUntil([&] { return ChosenRow(dialog) == 1; }));
    editor.takePicture("functions-filtered");
    editor.keys("{Enter}");
    EXPECT_TRUE(editor.showsPosition(63, 1));
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    editor.takePicture("functions-jumped");
}

TEST_F(FunctionListTest, WithoutAMatchEnterDoesNothingAndEscLeaves) {
    const Editor editor(folder, {"a.c"});
    const HWND dialog = openList(editor);
    ASSERT_TRUE(dialog);
    editor.keys("xyz{Enter}");
    EXPECT_TRUE(WaitUntil([&] { return Rows(dialog) == 0 && !IsWindowEnabled(GetDlgItem(dialog, IDOK)); }));
    editor.keys("{Backspace*3}{Down*4}");
    EXPECT_TRUE(WaitUntil([&] { return ChosenRow(dialog) == 4; }));
    editor.keys("{Esc}");
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    EXPECT_TRUE(editor.showsPosition(1, 1));
}

TEST_F(FunctionListTest, ADocumentWithoutFunctionsSaysSo) {
    const Editor editor(folder, {"b.txt"});
    editor.keys("{Ctrl+G}");
    EXPECT_TRUE(editor.showsMessage("No functions found."));
    EXPECT_FALSE(editor.hasDialog());
}

}  // namespace
}  // namespace vexa::test

// Electric words: what typing makes of them, and the dialog that keeps their list.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

std::string FileLine(const std::string& keyword, const std::string& expansion) {
    char line[400];
    std::snprintf(line, sizeof line, "%-10.10s\t%-2d\t%-300.300s\r\n", keyword.c_str(),
                  static_cast<int>(keyword.size()), expansion.c_str());
    return line;
}

class ElectricTest : public ::testing::Test {
  protected:
    ElectricTest() {
        folder.makeDirectory("vConfig");
        folder.put("a.c", "");
    }
    void saves(const Editor& editor, const std::string& expected) const {
        editor.keys("{Alt+W}");
        EXPECT_EQ(folder.getOnce("a.c", expected), expected);
    }
    static HWND openDialog(const Editor& editor) {
        editor.command(CommandId::ChangeElectric);
        const HWND dialog = editor.dialog("Electric Keyboard");
        EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == dialog; }));
        return dialog;
    }
    static std::string field(HWND dialog, int control) { return TextOf(GetDlgItem(dialog, control)); }

    TestFolder folder;
};

TEST_F(ElectricTest, ATypedBlankExpandsAndOneUndoTakesItBack) {
    folder.put("vConfig\\vexa.elc", "1\r\n" + FileLine("if", "if (\\c)\\n{\\n}"));
    const Editor editor(folder, {"a.c"});
    editor.keys("  if ");
    EXPECT_TRUE(editor.showsPosition(1, 7));
    editor.keys("x");
    EXPECT_TRUE(editor.showsPosition(1, 8));
    editor.takePicture("electric-expanded");
    saves(editor, "  if (x)\r\n  {\r\n  }\r\n");
    editor.keys("{Ctrl+End}{Enter}if ");
    EXPECT_TRUE(editor.showsPosition(4, 7));
    editor.keys("{Ctrl+Z}");
    EXPECT_TRUE(editor.showsPosition(4, 5));
    saves(editor, "  if (x)\r\n  {\r\n  }\r\n  if\r\n");
}

TEST_F(ElectricTest, AMacroExpandsAgain) {
    folder.put("vConfig\\vexa.elc", "1\r\n" + FileLine("r", "return \\c;"));
    const Editor editor(folder, {"a.c"});
    editor.keys("{F7}r 1{End}{Enter}{F7}");
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{F8}");
    ASSERT_TRUE(editor.showsMessage("Macro playback complete"));
    saves(editor, "return 1;\r\nreturn 1;\r\n");
}

TEST_F(ElectricTest, TheDialogKeepsTheListInItsFile) {
    const Editor editor(folder, {"a.c"});
    HWND dialog = openDialog(editor);
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+S}");
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "No keyword has been specified.");
    EXPECT_TRUE(Press(box, IDOK));
    editor.keys("for{Tab}for [\\c;;]\\n{Shift+[}\\n{Shift+]}{Alt+S}");
    EXPECT_TRUE(WaitUntil([&] { return SendDlgItemMessageA(dialog, IDC_ELECTRIC_KEYWORDS, LB_GETCOUNT, 0, 0) == 1; }));
    editor.keys("ret{Tab}return ;{Alt+S}");
    EXPECT_TRUE(WaitUntil([&] { return SendDlgItemMessageA(dialog, IDC_ELECTRIC_KEYWORDS, LB_GETCOUNT, 0, 0) == 2; }));
    EXPECT_EQ(SendDlgItemMessageA(dialog, IDC_ELECTRIC_KEYWORDS, LB_GETCURSEL, 0, 0), 1);
    editor.takePicture("electric-dialog");
    EXPECT_FALSE(folder.has("vConfig\\vexa.elc"));
    editor.keys("{Enter}");
    const std::string expected = "2\r\n" + FileLine("for", "for [\\c;;]\\n{\\n}") + FileLine("ret", "return ;");
    EXPECT_EQ(folder.getOnce("vConfig\\vexa.elc", expected), expected);
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));

    dialog = openDialog(editor);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(field(dialog, IDC_ELECTRIC_KEYWORD), "for");
    EXPECT_EQ(field(dialog, IDC_ELECTRIC_EXPANSION), "for [\\c;;]\\n{\\n}");
    editor.keys("{Alt+D}");
    EXPECT_TRUE(WaitUntil([&] { return field(dialog, IDC_ELECTRIC_KEYWORD) == "ret"; }));
    editor.keys("{Esc}");
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    editor.keys("for ");
    EXPECT_TRUE(editor.showsPosition(1, 6)) << "leaving the dialog has changed nothing";
    saves(editor, "for [;;]\r\n{\r\n}\r\n");
}

}  // namespace
}  // namespace vexa::test

// The "Editor Options" dialog.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

// The fields in their order on the dialog.
enum Field { kTabSize, kWrapColumn, kInterval, kFilter1, kFilter2 };

HWND FieldOf(HWND dialog, Field field) {
    return ChildrenOf(dialog, "Edit").at(field);
}

void Fill(HWND dialog, Field field, const char* text) {
    SendMessageA(FieldOf(dialog, field), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

// By the text that the user sees.
HWND ButtonOf(HWND dialog, const std::string& label) {
    for (const HWND button : ChildrenOf(dialog, "Button")) {
        std::string text = TextOf(button);
        std::erase(text, '&');
        if (text == label) return button;
    }
    return nullptr;
}

bool ClickOn(HWND dialog, const std::string& label) {
    const HWND button = ButtonOf(dialog, label);
    if (button) SendMessageA(button, BM_CLICK, 0, 0);
    return button != nullptr;
}

bool IsCheckedAt(HWND dialog, const std::string& label) {
    return SendMessageA(ButtonOf(dialog, label), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

class OptionsTest : public ::testing::Test {
  protected:
    static HWND open(const Editor& editor) {
        editor.command(CommandId::ChangeOptions);
        return editor.dialog("Editor Options");
    }
    void expectSetting(const std::string& line) const {
        EXPECT_NE(folder.get("vexa.INI").find("\r\n" + line + "\r\n"), std::string::npos) << line;
    }

    TestFolder folder;
};

TEST_F(OptionsTest, EveryFieldGoesToTheSettings) {
    {
        const Editor editor(folder);
        const HWND dialog = open(editor);
        ASSERT_TRUE(dialog);
        editor.takePicture("editor-options");
        EXPECT_TRUE(IsCheckedAt(dialog, "Create maximized"));
        for (const char* label :
             {"Tabs as spaces", "Line Wrap", "Restore working directory", "Restore files on startup",
              "Restore size on startup", "Multiple copy of file", "Smart Cursor Indenting", "Read file as Unix",
              "Write file as Unix", "Use a left margin", "Create tiled"}) {
            EXPECT_TRUE(ClickOn(dialog, label)) << label;
        }
        EXPECT_FALSE(IsCheckedAt(dialog, "Create maximized"));
        Fill(dialog, kTabSize, "7");
        Fill(dialog, kWrapColumn, "-66");
        Fill(dialog, kInterval, "12");
        Fill(dialog, kFilter1, "*.asm");
        Fill(dialog, kFilter2, "*.inc;*.mac");
        ASSERT_TRUE(Press(dialog, IDOK));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    for (const char* line :
         {"WrapColumn=66", "RestoreSize=1", "FileRead=1", "FileWrite=1", "LineWrap=1", "DisplayMode=1",
          "MultipleCopies=1", "HasMargin=0", "SmartIndent=0", "TabSize=7", "UseTabs=1", "AutoBackup=1",
          "BackupInterval=12", "RestoreFiles=0", "RestoreDirectory=0", "Filter1=*.asm", "Filter2=*.inc;*.mac"}) {
        expectSetting(line);
    }
}

TEST_F(OptionsTest, BadTabSizeIsRefusedAndCancelChangesNothing) {
    {
        const Editor editor(folder);
        const HWND dialog = open(editor);
        ASSERT_TRUE(dialog);
        ASSERT_TRUE(ClickOn(dialog, "Line Wrap"));
        for (const char* size : {"12", "0", "", "x"}) {
            Fill(dialog, kTabSize, size);
            PostMessageA(dialog, WM_COMMAND, IDOK, 0);
            const HWND box = editor.dialog("Vexa Error");
            ASSERT_TRUE(box) << size;
            EXPECT_EQ(BoxText(box), "The tab size must be a number 1 to 9.");
            ASSERT_TRUE(Press(box, IDOK));
            EXPECT_TRUE(IsWindowVisible(dialog));
        }
        editor.keys("3");  // the field is ready for another number
        EXPECT_TRUE(WaitUntil([&] { return TextOf(FieldOf(dialog, kTabSize)) == "3"; }));
        ASSERT_TRUE(Press(dialog, IDCANCEL));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    expectSetting("TabSize=4");
    expectSetting("LineWrap=0");
}

TEST_F(OptionsTest, NumbersAreFilledInOnlyForWhatIsOn) {
    {
        const Editor editor(folder);
        const HWND dialog = open(editor);
        ASSERT_TRUE(dialog);
        EXPECT_FALSE(IsWindowEnabled(FieldOf(dialog, kWrapColumn)));
        EXPECT_TRUE(IsWindowEnabled(FieldOf(dialog, kInterval)));
        ASSERT_TRUE(ClickOn(dialog, "Line Wrap") && ClickOn(dialog, "Automatic backup"));
        EXPECT_TRUE(IsWindowEnabled(FieldOf(dialog, kWrapColumn)));
        EXPECT_FALSE(IsWindowEnabled(FieldOf(dialog, kInterval)));
        ASSERT_TRUE(ClickOn(dialog, "Automatic backup"));
        Fill(dialog, kInterval, "0");  // both switch off what they are for
        Fill(dialog, kWrapColumn, "0");
        ASSERT_TRUE(Press(dialog, IDOK));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    expectSetting("AutoBackup=0");
    expectSetting("LineWrap=0");
}

}  // namespace
}  // namespace vexa::test

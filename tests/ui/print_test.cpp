// Printing as far as it goes without a printer, and the "Page Setup" dialog.
#include <gtest/gtest.h>
#include <windows.h>

#include <winspool.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

constexpr const char* kNoPrinter = "There is no printer to print on.";

// The controls in their order on the dialog.
enum Field { kLeft, kRight, kTop, kBottom };

bool HasPrinter() {
    DWORD size = 0;
    DWORD count = 0;
    EnumPrintersA(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 4, nullptr, 0, &size, &count);
    return size > 0;
}

class PrintTest : public ::testing::Test {
  protected:
    static HWND setup(const Editor& editor) {
        editor.command(206);
        return editor.dialog("Page Setup");
    }
    static HWND field(HWND dialog, Field which) { return ChildrenOf(dialog, "Edit").at(which); }
    static void fill(HWND dialog, Field which, const char* text) {
        SendMessageA(field(dialog, which), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    static bool isChecked(HWND dialog, const std::string& label) {
        return SendMessageA(button(dialog, label), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static HWND button(HWND dialog, const std::string& label) {
        for (const HWND found : ChildrenOf(dialog, "Button")) {
            if (TextOf(found) == label) return found;
        }
        return nullptr;
    }
    static void click(HWND dialog, const std::string& label) { PostMessageA(button(dialog, label), BM_CLICK, 0, 0); }

    TestFolder folder;
};

TEST_F(PrintTest, WithoutAPrinterTheUserIsToldAndNothingIsLost) {
    if (HasPrinter()) GTEST_SKIP() << "there is a printer";
    folder.put("a.txt", "one\r\ntwo\r\n");
    const Editor editor(folder, {"a.txt"});
    editor.keys("x{Shift+Down}{Alt+P}");
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), kNoPrinter);
    editor.takePicture("no-printer");
    ASSERT_TRUE(Press(box, IDOK));
    editor.keys("{Esc}{Ctrl+End}y{Alt+W}");
    ASSERT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_EQ(folder.get("a.txt"), "xone\r\ntwoy\r\n");
}

TEST_F(PrintTest, PageSetupKeepsItsOptionsOverARestart) {
    {
        const Editor editor(folder);
        const HWND dialog = setup(editor);
        ASSERT_TRUE(dialog);
        editor.takePicture("page-setup");
        EXPECT_TRUE(isChecked(dialog, "Col&ors"));
        EXPECT_FALSE(isChecked(dialog, "Line &numbers"));
        EXPECT_TRUE(isChecked(dialog, "H&eader with name, date and page"));
        fill(dialog, kLeft, "1.5");
        fill(dialog, kBottom, "0");
        click(dialog, "Col&ors");
        click(dialog, "Line &numbers");
        click(dialog, "H&eader with name, date and page");
        ASSERT_TRUE(Press(dialog, IDOK));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const Editor again(folder);
    const HWND dialog = setup(again);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(TextOf(field(dialog, kLeft)), "1.5");
    EXPECT_EQ(TextOf(field(dialog, kBottom)), "0");
    EXPECT_FALSE(isChecked(dialog, "Col&ors"));
    EXPECT_TRUE(isChecked(dialog, "Line &numbers"));
    EXPECT_FALSE(isChecked(dialog, "H&eader with name, date and page"));
    const std::string top = TextOf(field(dialog, kTop));
    fill(dialog, kTop, "3");
    ASSERT_TRUE(Press(dialog, IDCANCEL));
    const HWND unchanged = setup(again);
    ASSERT_TRUE(unchanged);
    EXPECT_EQ(TextOf(field(unchanged, kTop)), top);
}

TEST_F(PrintTest, PageSetupRefusesBadMarginsAndKnowsOfMissingPrinters) {
    const Editor editor(folder);
    const HWND dialog = setup(editor);
    ASSERT_TRUE(dialog);
    fill(dialog, kRight, "wide");
    PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box).find("A margin must be a number 0 to "), 0u);
    ASSERT_TRUE(Press(box, IDOK));
    editor.keys("1");  // the field is ready for another number
    EXPECT_TRUE(WaitUntil([&] { return TextOf(field(dialog, kRight)) == "1"; }));
    if (!HasPrinter()) {
        click(dialog, "&Printer...");
        box = editor.dialog("Vexa Error");
        ASSERT_TRUE(box);
        EXPECT_EQ(BoxText(box), kNoPrinter);
        ASSERT_TRUE(Press(box, IDOK));
    }
    EXPECT_TRUE(Press(dialog, IDOK));
}

}  // namespace
}  // namespace vexa::test

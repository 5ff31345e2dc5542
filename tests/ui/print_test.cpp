// Printing, with a printer and without one, and the "Page Setup" dialog.
#include <gtest/gtest.h>

#include "quickhelp/topics/made_help_file.h"
#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/test_printer.h"

namespace vexa::test {
namespace {

constexpr const char* kNoPrinter = "There is no printer to print on.";

// The controls in their order on the dialog.
enum Field { kLeft, kRight, kTop, kBottom };

class PrintTest : public ::testing::Test {
  protected:
    static HWND setup(const Editor& editor) {
        editor.command(CommandId::PrintSetup);
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
    RemoveTestPrinter();
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

// ---- with a printer ----------------------------------------------------------------------------------------------

class PrinterTest : public PrintTest {
  protected:
    void SetUp() override {
        if (!printer.isThere()) GTEST_SKIP() << "no printer can be made here";
    }
    void putLines(int count) const {
        std::string text;
        for (int i = 1; i <= count; ++i)
            text += "\tint line = " + std::to_string(i) + "; // of many\r\n";
        folder.put("a.c", text);
    }
    // Of the job that was printed last; each begins with a comment of its own.
    int printedPages() const {
        const std::string job = folder.get("printed.ps");
        int pages = 0;
        for (std::size_t at = job.find("\n%%Page: "); at != std::string::npos; at = job.find("\n%%Page: ", at + 1))
            ++pages;
        return pages;
    }
    bool printsPages(int count) const {
        return WaitUntil([&] { return printedPages() == count; });
    }
    static HWND askToPrint(const Editor& editor) {
        editor.keys("{Alt+P}");
        return editor.dialog("Print");
    }

    TestPrinter printer{folder.path("printed.ps")};
};

TEST_F(PrinterTest, ADocumentComesOutOnPagesAndStaysAsItIs) {
    putLines(150);
    const Editor editor(folder, {"a.c"});
    const HWND dialog = askToPrint(editor);
    ASSERT_TRUE(dialog);
    editor.takePicture("print-dialog");
    ASSERT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(editor.showsMessage("Printing completed."));
    EXPECT_TRUE(printsPages(3));
    editor.keys("x");  // the editor has the keys again
    EXPECT_TRUE(editor.hasCaption("a.c *]"));
}

TEST_F(PrinterTest, ATopicOfHelpComesOutOnAPage) {
    folder.put("vexa.ini", "[Editor Options]\r\nHelpViewer=Own\r\n");
    folder.put("Vexa.hlp", topics::test::MakeHelpFile());
    const Editor editor(folder);
    editor.keys("{F1}");
    ASSERT_TRUE(WaitUntil([] { return GetForegroundWindow() == FindWindowA("VexaHelp", nullptr); }));
    const HWND viewer = FindWindowA("VexaHelp", nullptr);
    editor.keys("{Ctrl+P}");
    const HWND dialog = editor.dialog("Print");
    ASSERT_TRUE(dialog && Press(dialog, IDOK));
    EXPECT_TRUE(WaitUntil([&] { return TextOf(ChildrenOf(viewer, "Static").at(0)) == "Printing completed."; }));
    EXPECT_TRUE(printsPages(1));
}

TEST_F(PrinterTest, WhatIsMarkedIsOfferedFirst) {
    putLines(150);
    const Editor editor(folder, {"a.c"});
    editor.keys("{Shift+Down*2}");
    ASSERT_TRUE(editor.showsPosition(3, 1));
    const HWND dialog = askToPrint(editor);
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(editor.showsMessage("Printing completed."));
    EXPECT_TRUE(printsPages(1));
}

TEST_F(PrinterTest, PaperThatIsChosenOnceIsKept) {
    putLines(150);
    const Editor editor(folder, {"a.c"});
    const HWND pageSetup = setup(editor);
    ASSERT_TRUE(pageSetup);
    click(pageSetup, "&Printer...");
    const HWND printerSetup = editor.dialog("Print Setup");
    ASSERT_TRUE(printerSetup);
    editor.takePicture("print-setup");
    const HWND landscape = button(printerSetup, "L&andscape");
    ASSERT_TRUE(landscape);
    SendMessageA(landscape, BM_CLICK, 0, 0);
    ASSERT_TRUE(Press(printerSetup, IDOK));
    ASSERT_TRUE(Press(pageSetup, IDOK));
    const HWND dialog = askToPrint(editor);
    ASSERT_TRUE(dialog && Press(dialog, IDOK));
    EXPECT_TRUE(editor.showsMessage("Printing completed."));
    EXPECT_TRUE(printsPages(4));  // one more than on upright paper
}

TEST_F(PrinterTest, MarginsWithoutRoomAndEmptyDocumentsAreRefused) {
    folder.put("vexa.INI", "[Print]\r\nLeftMargin=10160\r\nRightMargin=10160\r\n");
    putLines(1);
    const Editor editor(folder, {"a.c"});
    HWND dialog = askToPrint(editor);
    ASSERT_TRUE(dialog && Press(dialog, IDOK));
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "The margins leave no room for text on the page.");
    ASSERT_TRUE(Press(box, IDOK));
    const HWND setupDialog = setup(editor);
    ASSERT_TRUE(setupDialog);
    fill(setupDialog, kLeft, "1");
    fill(setupDialog, kRight, "1");
    ASSERT_TRUE(Press(setupDialog, IDOK));
    editor.command(CommandId::FileNew);
    ASSERT_TRUE(editor.hasCaption("[untitled.txt]"));
    dialog = askToPrint(editor);
    ASSERT_TRUE(dialog && Press(dialog, IDOK));
    EXPECT_TRUE(editor.showsMessage("There is nothing to print."));
    EXPECT_EQ(printedPages(), 0);
}

TEST_F(PrinterTest, ALongJobShowsItsPagesAndCanBeCancelled) {
    putLines(60000);
    const Editor editor(folder, {"a.c"});
    const HWND dialog = askToPrint(editor);
    ASSERT_TRUE(dialog && Press(dialog, IDOK));
    const HWND progress = editor.dialog("Printing");
    ASSERT_TRUE(progress);
    EXPECT_TRUE(WaitUntil([&] { return BoxText(progress).find("Page ") == 0; }));
    EXPECT_FALSE(IsWindowEnabled(editor.frame()));
    editor.takePicture("printing");
    ASSERT_TRUE(Press(progress, IDCANCEL));
    EXPECT_TRUE(editor.showsMessage("The printing was canceled."));
    EXPECT_TRUE(IsWindowEnabled(editor.frame()));
    editor.keys("x");
    EXPECT_TRUE(editor.hasCaption("a.c *]"));
}

}  // namespace
}  // namespace vexa::test

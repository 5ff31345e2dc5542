// Finding and replacing, from the menu's keys and in the dialogs.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/pixels.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

constexpr std::uint32_t kMarkingBackground = 0x008080;

bool IsEnabled(HWND dialog, int control) {
    return IsWindowEnabled(GetDlgItem(dialog, control));
}

bool IsChecked(HWND dialog, int control) {
    return IsDlgButtonChecked(dialog, control) == BST_CHECKED;
}

std::string FieldOf(HWND dialog, int control) {
    return TextOf(GetDlgItem(dialog, control));
}

// The texts in a combo box's list, one a line.
std::string ListOf(HWND dialog, int control) {
    const HWND combo = GetDlgItem(dialog, control);
    std::string lines;
    for (WPARAM i = 0; i < static_cast<WPARAM>(SendMessageA(combo, CB_GETCOUNT, 0, 0)); ++i) {
        wchar_t text[300] = L"";  // the way of these messages from one program to another
        SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        for (const wchar_t* c = text; *c; ++c)
            lines += static_cast<char>(*c);
        lines += '\n';
    }
    return lines;
}

class SearchTest : public ::testing::Test {
  protected:
    // Writes a document and opens it.
    Editor& edit(const std::string& text) {
        folder.put("a.txt", text);
        return start();
    }
    Editor& start() {
        editor = std::make_unique<Editor>(folder, std::vector<std::string>{"a.txt"});
        EXPECT_TRUE(editor->hasCaption("a.txt]"));
        return *editor;
    }
    HWND openDialog(const std::string& key, const std::string& caption) {
        editor->keys(key);
        const HWND dialog = editor->dialog(caption);
        if (!dialog) throw std::runtime_error("no dialog " + caption);
        EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == dialog; })) << caption;
        return dialog;
    }
    HWND openFind() { return openDialog("{Alt+S}", "Find"); }
    HWND openReplace() { return openDialog("{Alt+T}", "Replace"); }
    void goTo(HWND window) {
        SetForegroundWindow(window);
        EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == window; }));
    }
    void leave(HWND dialog) {
        goTo(dialog);
        editor->keys("{Esc}");
        EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    }
    void saves(const std::string& expected) {
        editor->keys("{Alt+W}");
        EXPECT_EQ(folder.getOnce("a.txt", expected), expected);
    }
    void end() {
        editor->requestClose();
        EXPECT_TRUE(editor->ends());
    }

    TestFolder folder;
    std::unique_ptr<Editor> editor;
};

TEST_F(SearchTest, FindDialogStaysOpenWhileMatchesAreMarkedAndEdited) {
    edit("alpha beta\r\nbeta gamma\r\nbeta\r\nend\r\n");
    const HWND dialog = openFind();
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
    editor->keys("beta");
    EXPECT_TRUE(WaitUntil([&] { return IsEnabled(dialog, IDOK); }));
    editor->keys("{Enter}");
    EXPECT_TRUE(editor->showsMessage("Search completed."));
    EXPECT_TRUE(editor->showsPosition(1, 7));
    editor->takePicture("find");
    editor->keys("{Enter}");
    EXPECT_TRUE(editor->showsPosition(2, 1));
    goTo(editor->frame());
    editor->keys("{Del}");  // what is marked
    ASSERT_TRUE(editor->hasCaption("*"));
    editor->keys("{Shift+F5}");
    EXPECT_TRUE(editor->showsPosition(3, 1));
    editor->keys("{Alt+F5}");
    EXPECT_TRUE(editor->showsPosition(1, 7));
    EXPECT_TRUE(editor->showsMessage(""));
    leave(dialog);
    editor->keys("{Del}");  // the keyboard is back in the document
    saves("alpha \r\n gamma\r\nbeta\r\nend\r\n");
    end();
}

TEST_F(SearchTest, EndAndStartOfTheFileAreToldWithTheText) {
    edit("one\r\ntwo\r\n");
    const HWND dialog = openFind();
    editor->keys("Three{Enter}");
    EXPECT_TRUE(editor->showsMessage("Reached end of file. String 'Three' not found."));
    editor->takePicture("find-not-found");
    editor->keys("{Alt+U}{Enter}");
    EXPECT_TRUE(editor->showsMessage("Reached start of file. String 'Three' not found."));
    leave(dialog);
    editor->keys("{Shift+F5}");
    EXPECT_TRUE(editor->showsMessage("Reached end of file. String 'Three' not found."));
    editor->keys("{Alt+F5}");
    EXPECT_TRUE(editor->showsMessage("Reached start of file. String 'Three' not found."));
    EXPECT_TRUE(editor->showsPosition(1, 1));
    end();
}

TEST_F(SearchTest, ReplaceAllIsOneStepOfUndoAndOfRedo) {
    edit("int a;\r\nint b; int c;\r\nprint\r\n");
    HWND dialog = openReplace();
    EXPECT_FALSE(IsEnabled(dialog, IDC_REPLACE));
    editor->keys("int{Tab}number{Alt+R}");
    ASSERT_TRUE(editor->showsMessage("Replacement completed with 1 occurrences changed."));
    EXPECT_TRUE(editor->showsPosition(1, 7));
    editor->takePicture("replace");
    editor->keys("{Alt+A}{Alt+R}");
    ASSERT_TRUE(editor->showsMessage("Replacement completed with 3 occurrences changed."));
    EXPECT_TRUE(editor->showsPosition(1, 7));
    editor->keys("{Alt+R}");
    EXPECT_TRUE(editor->showsMessage("Reached end of file. String 'int' not found."));
    leave(dialog);
    editor->keys("{Ctrl+Z}");
    EXPECT_TRUE(editor->showsPosition(1, 7));
    saves("number a;\r\nint b; int c;\r\nprint\r\n");
    dialog = openReplace();
    editor->keys("{Alt+R}");
    ASSERT_TRUE(editor->showsMessage("Replacement completed with 3 occurrences changed."));
    leave(dialog);
    editor->keys("{Ctrl+Z}{Ctrl+A}");
    saves("number a;\r\nnumber b; number c;\r\nprnumber\r\n");
    end();
}

TEST_F(SearchTest, FindNextInTheReplaceDialogChoosesWhatIsReplaced) {
    edit("a1 a2 a3\r\n");
    const HWND dialog = openReplace();
    editor->keys("a{Tab}b{Enter}");
    EXPECT_TRUE(editor->showsPosition(1, 1));
    editor->keys("{Enter}");
    EXPECT_TRUE(editor->showsPosition(1, 4));
    editor->keys("{Alt+R}");
    EXPECT_TRUE(editor->showsMessage("Replacement completed with 1 occurrences changed."));
    leave(dialog);
    saves("a1 b2 a3\r\n");
    end();
}

TEST_F(SearchTest, KeysSwitchTheOptionsAlsoWhileADialogShowsThem) {
    folder.put("b.txt", "b\r\n");
    edit("One\r\n");
    editor->keys("{Ctrl+F5}");
    EXPECT_TRUE(editor->showsMessage("Case Sensitivity 'On '"));
    editor->keys("{Ctrl+F5}");
    EXPECT_TRUE(editor->showsMessage("Case Sensitivity 'Off'"));
    const HWND dialog = openFind();
    editor->keys("{Ctrl+F6}");
    EXPECT_TRUE(editor->showsMessage("Regular expression 'On '"));
    EXPECT_TRUE(IsChecked(dialog, IDC_REGULAR_EXPRESSION));
    EXPECT_FALSE(IsChecked(dialog, IDC_MATCH_CASE));
    editor->keys("^o.e{Enter}");
    EXPECT_TRUE(editor->showsMessage("Search completed."));
    leave(dialog);
    editor->keys("{Ctrl+F6}");
    EXPECT_TRUE(editor->showsMessage("Regular expression 'Off'"));
    end();
}

TEST_F(SearchTest, CancelTakesBackWhatWasSwitchedUnlessItWasSearchedWith) {
    edit("one\r\n");
    HWND dialog = openFind();
    editor->keys("abandoned{Ctrl+F5}");
    EXPECT_TRUE(editor->showsMessage("Case Sensitivity 'On '"));
    leave(dialog);
    dialog = openFind();
    EXPECT_EQ(FieldOf(dialog, IDC_FIND_TEXT), "");
    EXPECT_FALSE(IsChecked(dialog, IDC_MATCH_CASE));
    editor->keys("one{Ctrl+F5}{Enter}");
    EXPECT_TRUE(editor->showsMessage("Search completed."));
    leave(dialog);
    dialog = openReplace();
    EXPECT_EQ(FieldOf(dialog, IDC_FIND_TEXT), "one");
    EXPECT_TRUE(IsChecked(dialog, IDC_MATCH_CASE));
    EXPECT_TRUE(IsEnabled(dialog, IDC_REPLACE));
    leave(dialog);
    end();
}

TEST_F(SearchTest, TextsAndPlaceOfTheDialogAreThereAfterARestart) {
    edit("one two\r\n");
    HWND dialog = openReplace();
    editor->keys("one{Tab}1{Alt+R}");
    EXPECT_TRUE(editor->showsMessage("Replacement completed with 1 occurrences changed."));
    EXPECT_EQ(ListOf(dialog, IDC_FIND_TEXT), "one\n");
    goTo(editor->frame());
    editor->keys("{Ctrl+Home}");
    EXPECT_TRUE(editor->showsPosition(1, 1));
    goTo(dialog);
    SetDlgItemTextA(dialog, IDC_FIND_TEXT, "two");
    editor->keys("{Enter}");
    EXPECT_TRUE(editor->showsPosition(1, 3));
    SetWindowPos(dialog, nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    leave(dialog);
    editor->keys("{Alt+W}");
    EXPECT_TRUE(editor->showsMessage("Write successful."));
    end();

    start();
    dialog = openReplace();
    EXPECT_EQ(ListOf(dialog, IDC_FIND_TEXT), "one\ntwo\n");
    EXPECT_EQ(ListOf(dialog, IDC_REPLACE_TEXT), "1\n");
    EXPECT_EQ(FieldOf(dialog, IDC_FIND_TEXT), "two");
    EXPECT_EQ(FieldOf(dialog, IDC_REPLACE_TEXT), "1");
    RECT place{};
    GetWindowRect(dialog, &place);
    EXPECT_EQ(place.left, 333);
    EXPECT_EQ(place.top, 222);
    editor->keys("{Del}{Down}");  // the first text of the list
    EXPECT_TRUE(WaitUntil([&] { return FieldOf(dialog, IDC_FIND_TEXT) == "one"; }));
    EXPECT_TRUE(IsEnabled(dialog, IDOK));
    leave(dialog);
    end();
}

TEST_F(SearchTest, EditingKeysOfAFieldWorkOnTheField) {
    edit("one\r\n");
    const HWND dialog = openFind();
    editor->keys("abc{Ctrl+A}{Ctrl+C}{Ctrl+V}{Ctrl+V}");
    EXPECT_TRUE(WaitUntil([&] { return FieldOf(dialog, IDC_FIND_TEXT) == "abcabc"; }));
    editor->keys("{Ctrl+A}{Ctrl+X}");
    EXPECT_TRUE(WaitUntil([&] { return !IsEnabled(dialog, IDOK); }));
    leave(dialog);
    EXPECT_EQ(editor->caption().find('*'), std::string::npos);
    end();
}

TEST_F(SearchTest, ADialogsMnemonicsAndFieldKeysComeBeforeCommands) {
    edit("one\r\n");
    const HWND dialog = openFind();
    editor->keys("abc{Ctrl+Home}x{Ctrl+End}y{Ctrl+Left}{Shift+Del}{Alt+X}{Alt+W}{Alt+S}");
    EXPECT_TRUE(WaitUntil([&] { return IsChecked(dialog, IDC_MATCH_CASE); }));
    EXPECT_TRUE(IsChecked(dialog, IDC_REGULAR_EXPRESSION));
    EXPECT_TRUE(IsChecked(dialog, IDC_WHOLE_WORD));
    EXPECT_EQ(FieldOf(dialog, IDC_FIND_TEXT), "xabcy");
    EXPECT_TRUE(editor->isRunning());
    EXPECT_EQ(editor->message(), "");
    editor->keys("{Alt+T}");  // no key of this dialog
    EXPECT_TRUE(editor->dialog("Replace"));
    end();
}

TEST_F(SearchTest, TheDialogLeavesTheMatchInSightAndEscInTheTextClosesIt) {
    std::string text;
    for (int line = 0; line < 60; ++line)
        text += std::string(60, '.') + (line % 7 == 6 ? "needle" : "......") + std::string(30, '.') + "\r\n";
    edit(text);
    const HWND dialog = openFind();
    editor->keys("needle{Enter}");
    ASSERT_TRUE(editor->showsPosition(7, 61));
    const auto marked = [&] { return std::ranges::count(PixelsOf(editor->activePane()), kMarkingBackground); };
    ASSERT_TRUE(WaitUntil([&] { return marked() > 0; }));
    const auto whole = marked();
    for (const int line : {14, 21, 28, 35, 42, 49, 56}) {
        editor->keys("{Enter}");
        ASSERT_TRUE(editor->showsPosition(line, 61));
        EXPECT_TRUE(WaitUntil([&] { return marked() == whole; })) << line;
        if (line == 28) editor->takePicture("find-clear-of-match");
    }
    goTo(editor->frame());
    editor->keys("{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    end();
}

TEST_F(SearchTest, PartsOfAPatternAreChosenFromAMenu) {
    edit("ab\tc\r\n");
    const HWND dialog = openFind();
    editor->keys("b");
    ASSERT_TRUE(WaitUntil([&] { return FieldOf(dialog, IDC_FIND_TEXT) == "b"; }));
    const auto choose = [&](const char* key) {
        PostMessageA(GetDlgItem(dialog, IDC_PATTERN_PIECES), BM_CLICK, 0, 0);
        ASSERT_TRUE(editor->hasPopupMenu());
        editor->takePicture(std::string("pattern-menu-") + key[0]);
        editor->keys(key);
        ASSERT_TRUE(WaitUntil([&] { return !FindWindowA("#32768", nullptr); }));
    };
    choose("t");
    EXPECT_TRUE(WaitUntil([&] { return FieldOf(dialog, IDC_FIND_TEXT) == "b\t"; }));
    EXPECT_FALSE(IsChecked(dialog, IDC_REGULAR_EXPRESSION));
    choose("o");
    editor->keys("xc{Enter}");  // inside the brackets
    EXPECT_TRUE(WaitUntil([&] { return FieldOf(dialog, IDC_FIND_TEXT) == "b\t[xc]"; }));
    EXPECT_TRUE(IsChecked(dialog, IDC_REGULAR_EXPRESSION));
    EXPECT_TRUE(editor->showsMessage("Search completed."));
    editor->keys("\\t");
    EXPECT_TRUE(editor->showsMessage("In a regular expression \\t is no tab. The button beside the field writes one."));
    editor->takePicture("tab-escape");
}

TEST_F(SearchTest, AMatchBeyondTheRightEdgeIsBroughtIntoSight) {
    edit("first\r\n" + std::string(280, '.') + "needle\r\n");
    const HWND dialog = openFind();
    editor->keys("needle{Enter}");
    EXPECT_TRUE(editor->showsPosition(2, 281));
    leave(dialog);
    editor->takePicture("find-beyond-right-edge");
    editor->click({2, 20});  // the first column in sight
    EXPECT_TRUE(WaitUntil([&] { return editor->position() > " L:00002 C:100"; })) << editor->position();
    end();
}

TEST_F(SearchTest, FindNextIsPartOfAMacro) {
    folder.put("vexa.INI", "[Searching]\r\nFindText=beta\r\n");
    edit("beta\r\nbeta\r\nbeta\r\n");
    editor->keys("{F7}{Shift+F5}{End}x{F7}");
    ASSERT_TRUE(editor->showsMessage("Macro recording complete"));
    editor->keys("{F8}");
    ASSERT_TRUE(editor->showsMessage("Macro playback complete"));
    saves("betax\r\nbetax\r\nbeta\r\n");
    end();
}

TEST_F(SearchTest, EscStopsALongReplacementThatOneUndoTakesBack) {
    std::string text;
    for (int line = 0; line < 60000; ++line)
        text += std::string(290, 'a') + "\r\n";
    edit(text);
    const HWND dialog = openReplace();
    editor->keys("a{Tab}b{Alt+A}{Alt+R}");
    ASSERT_TRUE(WaitUntil([&] { return editor->message().starts_with("Searching,"); })) << editor->message();
    editor->takePicture("replace-progress");
    editor->keys("{Esc}");
    ASSERT_TRUE(WaitUntil([&] { return editor->message().starts_with("Replacement stopped with "); }));
    EXPECT_TRUE(IsWindow(dialog));
    leave(dialog);
    ASSERT_TRUE(editor->hasCaption("*"));
    editor->keys("{Ctrl+Z}");
    EXPECT_TRUE(editor->hasCaption("a.txt]"));
    editor->keys("x{Backspace}{Alt+W}");
    EXPECT_TRUE(editor->showsMessage("Write successful."));
    EXPECT_TRUE(folder.get("a.txt") == text);
    end();
}

}  // namespace
}  // namespace vexa::test

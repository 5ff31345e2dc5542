// The dialogs "File Extensions" and "Edit File Extension", and the documents that their profiles serve.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/pixels.h"

namespace vexa::test {
namespace {

constexpr const char* kEdit = "Edit File Extension";

class Extensions : public ::testing::Test {
  protected:
    Extensions() { folder.put("a.zzz", "frob\r\n"); }

    static HWND open(const Editor& editor) {
        editor.command(CommandId::ChangeExtensions);
        return editor.dialog("File Extensions");
    }
    static HWND listOf(HWND dialog) { return ChildrenOf(dialog, "ListBox").at(0); }
    static bool hasRows(HWND dialog, int count) {
        return WaitUntil([&] { return SendMessageA(listOf(dialog), LB_GETCOUNT, 0, 0) == count; });
    }
    static std::string rowText(HWND dialog, int row) {
        wchar_t text[200] = L"";  // the system converts texts on their way to another program for some messages only
        SendMessageW(listOf(dialog), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        char narrow[200] = "";
        WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof narrow, nullptr, nullptr);
        return narrow;
    }
    static std::string chosenText(HWND dialog) {
        return rowText(dialog, static_cast<int>(SendMessageA(listOf(dialog), LB_GETCURSEL, 0, 0)));
    }
    static bool isEnabled(HWND dialog, int button) { return IsWindowEnabled(GetDlgItem(dialog, button)); }
    static bool closes(HWND dialog) {
        return WaitUntil([&] { return !IsWindow(dialog); });
    }
    bool hasProfile(const std::string& extension) const {
        return WaitUntil([&] { return folder.has("vConfig\\Vexa" + extension + ".PRF"); });
    }
    // Makes a profile by the keyboard, up to the point where "Update" is to be pressed.
    static HWND fillNew(const Editor& editor, const std::string& extension, const std::string& description) {
        editor.keys("{Alt+N}");
        const HWND dialog = editor.dialog(kEdit);
        editor.keys(extension + "{Alt+N}" + description);
        return dialog;
    }

    TestFolder folder;
};

TEST_F(Extensions, NewProfileColoursItsDocumentsAtOnceUntilItIsDeleted) {
    const Editor editor(folder, {"a.zzz"});
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kYellow)) << "no keyword";
    const HWND list = open(editor);
    ASSERT_TRUE(list);
    EXPECT_TRUE(hasRows(list, 0));
    EXPECT_FALSE(isEnabled(list, IDOK));
    editor.takePicture("file-extensions-empty");

    const HWND dialog = fillNew(editor, "zzz", "Test profile");
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+K}frob{Enter}");
    EXPECT_TRUE(WaitUntil([&] { return chosenText(dialog) == "frob"; }));
    editor.takePicture("edit-file-extension");
    editor.keys("{Alt+U}");
    EXPECT_TRUE(closes(dialog));
    EXPECT_TRUE(hasProfile("zzz"));
    EXPECT_TRUE(hasRows(list, 1));
    EXPECT_EQ(rowText(list, 0), "zzz\tTest profile");
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kWhite)) << "a keyword from now on";
    editor.takePicture("file-extensions");

    editor.keys("{Alt+D}");
    const HWND question = editor.dialog("Vexa 95");
    ASSERT_TRUE(question);
    EXPECT_EQ(BoxText(question), "Are you sure you want to delete the 'zzz' extension profile?");
    EXPECT_FALSE(IsWindowEnabled(list)) << "it waits for the answer";
    ASSERT_TRUE(Press(question, IDYES));
    EXPECT_TRUE(hasRows(list, 0));
    EXPECT_FALSE(folder.has("vConfig\\Vexazzz.PRF"));
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kYellow)) << "no keyword any more";
    editor.keys("{Esc}");
    EXPECT_TRUE(closes(list));
}

TEST_F(Extensions, ProfilesAreEditedAndRefusalsKeepTheDialogOpen) {
    const Editor editor(folder);
    const HWND list = open(editor);
    ASSERT_TRUE(list);
    HWND dialog = fillNew(editor, "a.b", "");
    ASSERT_TRUE(dialog);
    const auto answers = [&](const char* keys, const char* caption, const std::string& text, int button) {
        editor.keys(keys);
        const HWND box = editor.dialog(caption);
        EXPECT_NE(BoxText(box).find(text), std::string::npos) << BoxText(box);
        return Press(box, button);
    };
    EXPECT_TRUE(answers("{Alt+U}", "Vexa Error", "1 to 3 characters", IDOK));
    editor.keys("zzz{Alt+K}");  // the refused extension is marked, so typing replaces it
    EXPECT_TRUE(answers("{Enter}", "Vexa Error", "No keyword has been specified.", IDOK));
    editor.keys("{Alt+U}");
    ASSERT_TRUE(closes(dialog));
    ASSERT_TRUE(hasRows(list, 1));

    dialog = fillNew(editor, "ZZZ", "Second");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(answers("{Alt+U}", "Vexa 95", "The extension 'ZZZ' already exists.", IDNO));
    EXPECT_TRUE(answers("{Alt+U}", "Vexa 95", "The extension 'ZZZ' already exists.", IDYES));
    ASSERT_TRUE(closes(dialog));
    EXPECT_TRUE(WaitUntil([&] { return rowText(list, 0) == "zzz\tSecond"; })) << rowText(list, 0);
    EXPECT_TRUE(hasRows(list, 1));

    folder.setReadOnly("vConfig\\Vexazzz.PRF");
    editor.keys("{Alt+E}");
    dialog = editor.dialog(kEdit);
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+T}{Home}{Alt+O}");  // the first keyword
    EXPECT_TRUE(WaitUntil([&] { return rowText(dialog, 0) == "auto"; })) << rowText(dialog, 0);
    EXPECT_TRUE(answers("{Alt+U}", "Vexa Error", "unable to write to the file 'Vexazzz.PRF'", IDOK));
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_TRUE(Press(dialog, IDCANCEL));
}

TEST_F(Extensions, KeywordsAreImportedFromTextFiles) {
    folder.put("words.txt", "frob do\r\nnicate");
    const Editor editor(folder, {"a.zzz"});
    ASSERT_TRUE(open(editor));
    const HWND dialog = fillNew(editor, "zzz", "");
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+I}");
    const HWND question = editor.dialog("Import Keyword File");
    ASSERT_TRUE(question);
    ASSERT_TRUE(EnterFileName(question, folder.path("words.txt")));
    const HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "Keywords added to the list: 2\nIn the list already: 1");
    editor.takePicture("keyword-import");
    ASSERT_TRUE(Press(box, IDOK));
    EXPECT_TRUE(hasRows(dialog, 57));
    editor.keys("{Alt+U}");
    EXPECT_TRUE(closes(dialog));
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kWhite));
}

}  // namespace
}  // namespace vexa::test

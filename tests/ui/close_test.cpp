// What closing asks, and what each answer does.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class CloseTest : public ::testing::Test {
  protected:
    CloseTest() {
        folder.put("a.txt", "a\r\n");
        folder.put("b.txt", "b\r\n");
    }
    std::string question(const std::string& name) const {
        return "The file '" + folder.path(name) + "' has been changed.\n Do you wish to save the changes?";
    }

    TestFolder folder;
};

TEST_F(CloseTest, ChangedDocumentAsksAndEachAnswerIsFollowed) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("new ");
    ASSERT_TRUE(editor.showsPosition(1, 5));

    editor.command(CommandId::FileClose);
    HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), question("a.txt"));
    editor.takePicture("close-question");
    ASSERT_TRUE(Press(box, IDCANCEL));
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));

    editor.keys("{Ctrl+Minus}");
    ASSERT_TRUE(box = editor.dialog("Vexa 95"));
    ASSERT_TRUE(Press(box, IDYES));
    EXPECT_TRUE(WaitUntil([&] { return editor.documents().empty(); }));
    EXPECT_EQ(folder.get("a.txt"), "new a\r\n");
    EXPECT_EQ(editor.caption(), "Vexa 95");
    EXPECT_EQ(editor.mode() + editor.position(), "");
    editor.takePicture("no-document");
}

TEST_F(CloseTest, NoThrowsTheChangesAwayAndUnchangedDocumentsAskNothing) {
    const Editor editor(folder, {"a.txt", "b.txt"});
    editor.keys("new ");
    ASSERT_TRUE(editor.showsPosition(1, 5));
    editor.command(CommandId::CloseAll);
    const HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), question("b.txt"));
    ASSERT_TRUE(Press(box, IDNO));
    EXPECT_TRUE(WaitUntil([&] { return editor.documents().empty(); }));
    EXPECT_EQ(folder.get("b.txt"), "b\r\n");
    EXPECT_TRUE(editor.isRunning());
}

TEST_F(CloseTest, FrameAsksForEachDocumentAndStaysWhenOneRefuses) {
    const Editor editor(folder, {"a.txt", "b.txt"});
    editor.keys("2{Alt+N}");
    ASSERT_TRUE(editor.hasCaption("a.txt]"));
    editor.keys("1");
    ASSERT_TRUE(editor.hasCaption("a.txt *]"));

    editor.requestClose();
    HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), question("a.txt"));
    ASSERT_TRUE(Press(box, IDNO));
    ASSERT_TRUE(WaitUntil([&] { return (box = editor.dialog("Vexa 95")) && BoxText(box) == question("b.txt"); }));
    ASSERT_TRUE(Press(box, IDCANCEL));
    EXPECT_TRUE(editor.hasCaption("b.txt *]"));
    EXPECT_EQ(editor.documents().size(), 2u) << "all questions come before the first window closes";

    editor.command(CommandId::Exit);
    ASSERT_TRUE(WaitUntil([&] { return (box = editor.dialog("Vexa 95")) && BoxText(box) == question("a.txt"); }));
    ASSERT_TRUE(Press(box, IDNO));
    ASSERT_TRUE(WaitUntil([&] { return (box = editor.dialog("Vexa 95")) && BoxText(box) == question("b.txt"); }));
    ASSERT_TRUE(Press(box, IDYES));
    EXPECT_TRUE(editor.ends());
    EXPECT_EQ(folder.get("a.txt"), "a\r\n");
    EXPECT_EQ(folder.get("b.txt"), "2b\r\n");
}

// The system waits for the answer, so the question is put from another thread.
DWORD WINAPI AskEndOfSession(void* frame) {
    return static_cast<DWORD>(SendMessageA(static_cast<HWND>(frame), WM_QUERYENDSESSION, 0, 0));
}

TEST_F(CloseTest, EndOfTheSessionIsRefusedWithTheDocument) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("x");
    ASSERT_TRUE(editor.hasCaption("*"));
    const HANDLE thread = CreateThread(nullptr, 0, &AskEndOfSession, editor.frame(), 0, nullptr);
    const HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    ASSERT_TRUE(Press(box, IDCANCEL));
    ASSERT_EQ(WaitForSingleObject(thread, 20000), WAIT_OBJECT_0);
    DWORD answer = TRUE;
    GetExitCodeThread(thread, &answer);
    CloseHandle(thread);
    EXPECT_EQ(answer, static_cast<DWORD>(FALSE));
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));
}

TEST_F(CloseTest, EndOfTheSessionThatAnotherProgramRefusesChangesNothing) {
    {
        const Editor editor(folder, {"a.txt", "b.txt"});
        EXPECT_TRUE(SendMessageA(editor.frame(), WM_QUERYENDSESSION, 0, 0));
        EXPECT_EQ(editor.documents().size(), 2u);
        SendMessageA(editor.frame(), WM_ENDSESSION, FALSE, 0);
        EXPECT_TRUE(editor.runCommand(CommandId::FileClose));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const Editor again(folder);
    EXPECT_TRUE(again.hasCaption("a.txt]"));
    EXPECT_EQ(again.documents().size(), 1u) << "what was closed by hand has not come back";
}

TEST_F(CloseTest, NothingClosesWhileAQuestionIsOpen) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("x");
    ASSERT_TRUE(editor.hasCaption("*"));
    editor.command(CommandId::FileClose);
    const HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_FALSE(SendMessageA(editor.frame(), WM_QUERYENDSESSION, 0, 0));
    editor.requestClose();
    ASSERT_TRUE(Press(box, IDCANCEL));
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));
    EXPECT_FALSE(editor.hasDialog());
}

TEST_F(CloseTest, SettingsAreKeptAtTheEnd) {
    {
        const Editor editor(folder, {"a.txt"});
        editor.keys("{Alt+I}");
        ASSERT_TRUE(editor.showsMode("OVR"));
        editor.command(CommandId::ToggleStatusBar);
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const std::string settings = folder.get("vexa.INI");
    EXPECT_NE(settings.find("InsertMode=0"), std::string::npos) << settings;
    EXPECT_NE(settings.find("StatusBar=0"), std::string::npos) << settings;
    const Editor again(folder, {"a.txt"});
    again.takePicture("no-status-bar");
    EXPECT_FALSE(IsWindowVisible(ChildrenOf(again.frame(), "StatusBarCL").at(0)));
    again.command(CommandId::ToggleStatusBar);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(ChildrenOf(again.frame(), "StatusBarCL").at(0)); }));
}

}  // namespace
}  // namespace vexa::test

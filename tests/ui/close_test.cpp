// What the end of the system's session asks.
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

    TestFolder folder;
};

// The system waits for the answer, so the question is put from another thread.
DWORD WINAPI AskEndOfSession(void* frame) {
    return static_cast<DWORD>(SendMessageA(static_cast<HWND>(frame), WM_QUERYENDSESSION, 0, 0));
}

TEST_F(CloseTest, EndOfTheSessionIsRefusedWithTheDocumentAndWhileAnotherQuestionIsOpen) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("x");
    ASSERT_TRUE(editor.hasCaption("*"));
    editor.command(CommandId::FileClose);
    HWND box = editor.dialog("Vexa 95");
    ASSERT_TRUE(box);
    EXPECT_FALSE(SendMessageA(editor.frame(), WM_QUERYENDSESSION, 0, 0));
    editor.requestClose();
    ASSERT_TRUE(Press(box, IDCANCEL));
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));
    EXPECT_FALSE(editor.hasDialog());
    const HANDLE thread = CreateThread(nullptr, 0, &AskEndOfSession, editor.frame(), 0, nullptr);
    ASSERT_TRUE(box = editor.dialog("Vexa 95"));
    ASSERT_TRUE(Press(box, IDCANCEL));
    ASSERT_EQ(WaitForSingleObject(thread, kPatience), WAIT_OBJECT_0);
    DWORD answer = TRUE;
    GetExitCodeThread(thread, &answer);
    CloseHandle(thread);
    EXPECT_EQ(answer, static_cast<DWORD>(FALSE));
    EXPECT_TRUE(editor.hasCaption("a.txt *]"));
    editor.command(CommandId::FileClose);
    ASSERT_TRUE(box = editor.dialog("Vexa 95"));
    ASSERT_TRUE(Press(box, IDNO));
    ASSERT_TRUE(WaitUntil([&] { return editor.documents().empty(); }));
    editor.requestClose();
    ASSERT_TRUE(editor.ends());
    const Editor again(folder);
    EXPECT_TRUE(again.hasCaption("[untitled.txt]")) << "what was closed by hand has not come back";
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

TEST_F(CloseTest, EndThatIsAskedForWhileWindowsCloseComesAfterThem) {
    const Editor editor(folder, {"a.txt", "b.txt"});
    editor.command(CommandId::CloseAll);
    editor.requestClose();
    EXPECT_TRUE(editor.ends());
}

TEST_F(CloseTest, EndOfTheSessionIsAgreedToWhileWindowsClose) {
    std::vector<std::string> names;
    for (char name = 'A'; name <= 'Z'; ++name)
        folder.put(names.emplace_back(1, name), "");
    const Editor editor(folder, names);
    editor.command(CommandId::CloseAll);
    while (!ChildrenOf(editor.frame(), "MDIchildCL").empty())
        EXPECT_TRUE(SendMessageA(editor.frame(), WM_QUERYENDSESSION, 0, 0));
}

}  // namespace
}  // namespace vexa::test

// Files that reach a running editor from outside: from a second start, by dropping and by other programs.
#include <windows.h>

#include <gtest/gtest.h>
#include <shlobj.h>

#include <memory>

#include "ui/dde_client.h"
#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class InstanceTest : public ::testing::Test {
  protected:
    InstanceTest() {
        for (const char* name : {"a.c", "b.c", "long name.c"})
            folder.put(name, "line\r\n");
    }
    static bool has(const Editor& editor, std::size_t documents) {
        return WaitUntil([&] { return editor.documents().size() == documents; });
    }

    TestFolder folder;
};

TEST_F(InstanceTest, SeveralFilesWildcardsOrNoneStartAnotherEditor) {
    const Editor first(folder);
    const Editor second(folder, {"a.c", "b.c"});
    EXPECT_TRUE(has(second, 2));
    const Editor third(folder, {"*.c"});
    EXPECT_TRUE(has(third, 3));
    const Editor fourth(folder);
    EXPECT_TRUE(fourth.hasCaption("[untitled.txt]"));
    EXPECT_TRUE(has(first, 1));
}

TEST_F(InstanceTest, BrokenHandOffIsReported) {
    const Editor editor(folder);
    const UINT message = RegisterWindowMessageA("VexaFileOpen");
    PostMessageA(editor.frame(), message, 0, 0);
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box), "Unexpected Vexa error at File: VXEAPP01 Line: 2173");
    ASSERT_TRUE(Press(box, IDOK));
    EXPECT_TRUE(editor.answers());
}

TEST_F(InstanceTest, FilesThatAreStartedTogetherAllOpenInOneEditor) {
    const Editor first(folder);
    const Editor second(folder);  // hears of each file too, and says nothing about those that the other one takes
    std::vector<std::unique_ptr<StartedProgram>> starts;
    for (int i = 0; i < 8; ++i) {
        const std::string name = std::to_string(i) + ".c";
        folder.put(name, name);
        starts.push_back(std::make_unique<StartedProgram>(folder, name));
    }
    for (const auto& start : starts)
        EXPECT_TRUE(start->ends());
    EXPECT_TRUE(WaitUntil([&] { return first.documents().size() + second.documents().size() == 10; }));
    EXPECT_FALSE(first.hasDialog() || second.hasDialog());
}

TEST_F(InstanceTest, OtherProgramsOpenFilesByDde) {
    const Editor editor(folder);
    EXPECT_TRUE(ExecuteByDde("[open(\"" + folder.path("a.c") + "\")]"));
    EXPECT_TRUE(editor.hasCaption("a.c]"));
    EXPECT_TRUE(ExecuteByDde("[open(\"" + folder.path("b.c") + "\" and anything behind it"));
    EXPECT_TRUE(editor.hasCaption("b.c]"));
    ShowWindow(editor.frame(), SW_MINIMIZE);
    for (int i = 0; i < 10; ++i)  // each is refused, after the other program has its answer
        EXPECT_TRUE(ExecuteByDde("[open(\"NUL\")]"));
    EXPECT_TRUE(WaitUntil([&] { return !IsIconic(editor.frame()); }));
    for (int i = 0; i < 10; ++i) {
        const HWND box = editor.dialog("Vexa Error");
        ASSERT_TRUE(box && Press(box, IDOK)) << i;
    }
    for (const char* other : {"[OPEN(\"a.c\")]", "[open(\"a.c)]", "[exit]", ""})
        EXPECT_FALSE(ExecuteByDde(other)) << other;
    EXPECT_FALSE(ConnectsByDde("another topic"));
    EXPECT_TRUE(ConnectsByDde("system", false)) << "by the topic alone";
    EXPECT_FALSE(ConnectsByDde("another topic", false));
    EXPECT_TRUE(has(editor, 3));
}

TEST_F(InstanceTest, AStartThatWaitsStartsAnEditorThatStaysOpen) {
    const StartedProgram start(folder, "-wait a.c");
    HWND frame = nullptr;
    const auto showsFile = [&] {
        frame = FindWindowA("AppFrameCL", nullptr);
        return frame && NameShownBy(frame).find("a.c]") != std::string::npos;
    };
    ASSERT_TRUE(WaitUntil(showsFile));
    EXPECT_TRUE(start.isRunning());
    PostMessageA(frame, WM_COMMAND, static_cast<WPARAM>(CommandId::FileClose), 0);
    EXPECT_TRUE(start.ends());
    DWORD code = 1;
    EXPECT_TRUE(GetExitCodeProcess(start.process(), &code) && code == 0) << code;
    EXPECT_TRUE(IsWindow(frame));
    DWORD editor = 0;
    GetWindowThreadProcessId(frame, &editor);
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, editor);
    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(WaitForSingleObject(process, kPatience), WAIT_OBJECT_0);
    CloseHandle(process);
}

// What the shell gives to a window on which files are dropped, in the memory of that window's process.
void* PutDropInto(HANDLE process, const std::string& names) {
    std::string bytes(sizeof(DROPFILES), '\0');
    reinterpret_cast<DROPFILES*>(bytes.data())->pFiles = sizeof(DROPFILES);
    bytes += names + std::string(2, '\0');
    void* memory = VirtualAllocEx(process, nullptr, bytes.size(), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (memory) WriteProcessMemory(process, memory, bytes.data(), bytes.size(), nullptr);
    return memory;
}

TEST_F(InstanceTest, DroppedFilesOpenInTheirOrder) {
    const Editor editor(folder);
    const std::string names = folder.path("b.c") + '\0' + folder.path("a.c");
    void* drop = PutDropInto(editor.process(), names);
    ASSERT_TRUE(drop);
    PostMessageA(editor.frame(), WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
    ASSERT_TRUE(has(editor, 3));
    EXPECT_TRUE(editor.hasCaption("a.c]"));
    editor.keys("{Alt+N}");
    EXPECT_TRUE(editor.hasCaption("b.c]"));
}

TEST_F(InstanceTest, CommandLineIsExplainedOnRequest) {
    for (const char* request : {"/?", "-?"}) {
        const StartedProgram asked(folder, request);
        const HWND box = asked.dialog("Vexa 95");
        ASSERT_TRUE(box) << request;
        EXPECT_NE(BoxText(box).find("-L"), std::string::npos) << BoxText(box);
        ASSERT_TRUE(Press(box, IDOK));
        EXPECT_TRUE(asked.ends());
    }
}

}  // namespace
}  // namespace vexa::test

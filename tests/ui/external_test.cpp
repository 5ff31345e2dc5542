// Programs that the editor runs: command lines, tools and a compiler, and the windows that show what they print.
#include <gtest/gtest.h>

#include "ui/clipboard.h"
#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/key_script.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

class External : public ::testing::Test {
  protected:
    External() {
        folder.putTestProgram();
        folder.put("a.c", "one\r\ntwo\r\n");
    }

    static bool isActive(const Editor& editor, const std::string& caption) {
        return WaitUntil([&] { return TextOf(editor.activeDocument()).find(caption) != std::string::npos; });
    }
    static HWND openDialog(const Editor& editor, const std::string& keys, const std::string& caption) {
        editor.keys(keys);
        return inFront(editor.dialog(caption));
    }
    static HWND inFront(HWND dialog) {
        EXPECT_TRUE(dialog && WaitUntil([&] { return GetForegroundWindow() == dialog; }));
        return dialog;
    }
    static void runCommandLine(const Editor& editor, const std::string& command) {
        ASSERT_TRUE(openDialog(editor, "{F10}", "DOS Command Line"));
        editor.keys(command + "{Enter}");
    }
    // All rows of the active list.
    static std::string rows(const Editor& editor) {
        PutForeignText("");
        editor.rightClick({5, 5});
        EXPECT_TRUE(editor.hasPopupMenu());
        editor.keys("a");
        WaitUntil([] { return !ClipboardText().empty(); });
        return ClipboardText();
    }
    bool begins(const std::string& name) const {
        return WaitUntil([&] { return folder.has(name + ".begun"); });
    }
    // Lets the program end that waits for the file "go".
    void endWaiting() const {
        folder.put("go", "");
        EXPECT_TRUE(WaitUntil([&] { return !folder.has("go.begun"); }));
        DeleteFileA(folder.path("go").c_str());
    }
    void setUpCompiler(const std::string& command) const {
        folder.put("vexa.INI", "[Compiler]\r\nCommand=" + command + " %s\r\nFileName=SAMPLE.C\r\nDisplay=0\r\n");
    }

    TestFolder folder;
};

TEST_F(External, ACommandLineFillsTheOutputWindowWhoseLinesOpenFiles) {
    folder.put("found.txt", "found\r\n");
    const Editor editor(folder, {"a.c"});
    editor.keys("{Down}");
    EXPECT_TRUE(editor.showsPosition(2, 1));
    GUITHREADINFO caret{};
    caret.cbSize = sizeof(caret);
    GetGUIThreadInfo(GetWindowThreadProcessId(editor.frame(), nullptr), &caret);
    const LONG row = caret.rcCaret.top;

    ASSERT_TRUE(openDialog(editor, "{F10}", "DOS Command Line"));
    editor.keys("dir /b *.txt");
    editor.takePicture("dos-command-line");
    editor.keys("{Enter}");
    ASSERT_TRUE(editor.showsMessage("Command has completed."));
    ASSERT_TRUE(isActive(editor, "Output Window"));
    const std::string printed = rows(editor);
    EXPECT_NE(printed.find("\r\n\r\nfound.txt\r\n\r\nCommand has completed.\r\n"), std::string::npos) << printed;
    editor.keys("{Home}{Down*5}");
    editor.takePicture("output-window");
    editor.keys("{Ctrl+C}");
    EXPECT_TRUE(WaitUntil([] { return ClipboardText() == "found.txt\r\n"; })) << ClipboardText();
    editor.keys("{Enter}");
    EXPECT_TRUE(isActive(editor, "found.txt"));
    editor.keys("{Ctrl+Minus}{Ctrl+O}");
    ASSERT_TRUE(isActive(editor, "Output Window"));
    editor.doubleClick({20, row * 3 + row / 2});
    EXPECT_TRUE(editor.showsMessage("The line selected does not contain a valid file name."));
    editor.doubleClick({20, row * 5 + row / 2});
    EXPECT_TRUE(isActive(editor, "found.txt"));
}

TEST_F(External, RowsOfBothListsAreFoundSelectedAndCopied) {
    folder.put("rows.txt", "alpha\r\nbeta\r\ngamma\r\n");
    setUpCompiler("type rows.txt");
    const Editor editor(folder, {"a.c"});
    const auto copies = [&](const std::string& keys, const std::string& rows) {
        editor.keys(keys + "{Ctrl+C}");
        EXPECT_TRUE(WaitUntil([&] { return ClipboardText() == rows; })) << ClipboardText();
    };
    runCommandLine(editor, "type rows.txt");
    ASSERT_TRUE(editor.showsMessage("Command has completed."));
    ASSERT_TRUE(openDialog(editor, "{Alt+S}", "Find"));
    editor.keys("BETA{Enter}");
    EXPECT_TRUE(editor.showsMessage("Search completed."));
    editor.takePicture("list-find");
    editor.keys("{Esc}");
    copies("{Shift+Down}", "beta\r\ngamma\r\n");
    editor.takePicture("list-rows-selected");
    copies("{Up*3}{Shift+Down}", "\r\nalpha\r\n");
    editor.drag({{5, 3}, {5, 40}});
    editor.keys("{Ctrl+C}");
    EXPECT_TRUE(WaitUntil([&] { return ClipboardText().starts_with(std::string(80, '-') + "\r\n  "); }));
    editor.keys("{Ctrl+F4}{Alt+F10}");
    ASSERT_TRUE(editor.showsMessage("Compilation completed successfully."));
    ASSERT_TRUE(isActive(editor, "Message Window"));
    copies("{F3}{Shift+Up}", "alpha\r\nbeta\r\n");
}

TEST_F(External, AShellIsOpenedWhereTheEditorIs) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+Z}");
    DWORD process = GetProcessId(editor.process());
    ASSERT_TRUE(WaitUntil([&] {
        GetWindowThreadProcessId(GetForegroundWindow(), &process);
        return GetForegroundWindow() && process != GetProcessId(editor.process());
    }));
    editor.takePicture("dos-shell");
    PressKeys("echo x>shell.out{Enter}exit{Enter}");
    EXPECT_TRUE(WaitUntil([&] { return folder.has("shell.out"); }));
    EXPECT_TRUE(editor.showsMessage("COMMAND.COM "));
}

TEST_F(External, ASecondCommandLineWaitsForTheFirst) {
    const Editor editor(folder, {"a.c"});
    runCommandLine(editor, "test_program wait go");
    ASSERT_TRUE(begins("go"));
    editor.keys("{F10}");
    EXPECT_TRUE(editor.showsMessage("Spawn currently active, please wait."));
    EXPECT_FALSE(editor.hasDialog());
    endWaiting();
    EXPECT_TRUE(editor.showsMessage("Command has completed."));
    editor.keys("{Ctrl+F4}");
    EXPECT_TRUE(isActive(editor, "a.c"));
}

TEST_F(External, ARealCompilersErrorsAreSteppedThrough) {
    if (GetFileAttributesA("Z:\\usr\\bin\\i686-w64-mingw32-gcc") == INVALID_FILE_ATTRIBUTES)
        GTEST_SKIP() << "this machine has no compiler";
    folder.put("main.c",
               "#include \"part.h\"\r\nint main(void) {\r\n    int n = \"text\";\r\n    return wrong;\r\n}\r\n");
    folder.put("part.h", "int shared;\r\nbad line;\r\n");
    const Editor editor(folder, {"main.c"});
    editor.command(CommandId::SetUpCompiler);
    const HWND dialog = inFront(editor.dialog("Setup Compiler"));
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+A}test_program gcc -c SAMPLE.C");
    editor.takePicture("setup-compiler");
    editor.keys("{Enter}");
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    editor.keys(" {Alt+F10}");
    ASSERT_TRUE(editor.showsMessage("Compilation completed with errors."));
    ASSERT_TRUE(isActive(editor, "Message Window"));
    editor.takePicture("message-window");
    EXPECT_EQ(folder.get("main.c").front(), ' ') << "what is compiled is on the disk";
    editor.keys("{Ctrl+N}");
    EXPECT_TRUE(isActive(editor, "part.h"));
    EXPECT_TRUE(editor.showsPosition(2, 1));
    editor.keys("{Ctrl+N}");
    EXPECT_TRUE(isActive(editor, "main.c"));
    EXPECT_TRUE(editor.showsPosition(3, 1));
    editor.keys("{Ctrl+N}");
    EXPECT_TRUE(editor.showsPosition(4, 1));
    editor.takePicture("compile-stepped");
    editor.keys("{Ctrl+L}");
    EXPECT_TRUE(editor.showsPosition(3, 1));
}

TEST_F(External, NothingDanglesWhenItIsClosedWhileACompilerRuns) {
    setUpCompiler("test_program wait go");
    Editor editor(folder, {"a.c"});
    editor.keys("{Ctrl+P}");
    ASSERT_TRUE(isActive(editor, "Message Window"));
    editor.keys("{Ctrl+F4}");
    ASSERT_TRUE(isActive(editor, "a.c"));
    editor.keys("{Alt+F10}");
    ASSERT_TRUE(begins("go"));
    editor.keys("{Alt+F10}");
    EXPECT_TRUE(editor.showsMessage("Spawn currently active, please wait."));
    editor.keys("{Ctrl+P}{Ctrl+F4}{Ctrl+Minus}");
    ASSERT_TRUE(WaitUntil([&] { return editor.documents().empty(); }));
    endWaiting();
    EXPECT_TRUE(editor.runCommand(CommandId::NextError));
    EXPECT_TRUE(editor.showsMessage("No more errors."));
    editor.requestClose();
    ASSERT_TRUE(editor.ends());

    const Editor second(folder, {"a.c"});
    second.keys("{Alt+F10}");
    ASSERT_TRUE(begins("go"));
    second.requestClose();
    EXPECT_TRUE(second.ends());
    endWaiting();
}

TEST_F(External, ToolsAreMadeInTheDialogAndStayInTheMenu) {
    {
        const Editor editor(folder, {"a.c"});
        editor.command(CommandId::ChangeTools);
        const HWND dialog = inFront(editor.dialog("Tools"));
        ASSERT_TRUE(dialog);
        const auto hasTools = [&](int count) {
            return WaitUntil([&] { return SendDlgItemMessageA(dialog, IDC_TOOLS, LB_GETCOUNT, 0, 0) == count; });
        };
        const HWND find = openDialog(editor, "{Alt+F}", "Find Tool");
        editor.takePicture("find-tool");
        ASSERT_TRUE(EnterFileName(find, folder.path("test_program.exe")));
        EXPECT_TRUE(WaitUntil([&] {
            return TextOf(GetDlgItem(dialog, IDC_TOOL_PROGRAM)).ends_with("\\test_program.exe");
        })) << TextOf(GetDlgItem(dialog, IDC_TOOL_PROGRAM));
        editor.keys("{Alt+M}To be deleted{Enter}");
        ASSERT_TRUE(hasTools(1));
        editor.keys("{Alt+D}");
        ASSERT_TRUE(inFront(editor.dialog("Vexa 95")));
        editor.keys("{Enter}");
        ASSERT_TRUE(hasTools(0));
        // Five are run without capture, five with it, and five ask.
        editor.keys("{Alt+L}{Alt+E}");
        for (int i = 1; i <= 15; ++i) {
            const std::string number = std::to_string(i);
            if (i == 6 || i == 11) editor.keys("{Alt+O}");
            if (i == 11 || i == 15) editor.keys("{Alt+K}");
            editor.keys("{Alt+R}copy a.c made" + number + "{Alt+M}Tool " + number + "{Enter}");
            ASSERT_TRUE(hasTools(i));
        }
        editor.keys("{Alt+K}{Alt+U}{Alt+M}One more");
        editor.takePicture("tools-dialog");
        editor.keys("{Enter}");
        const HWND box = editor.dialog("Vexa Error");
        ASSERT_TRUE(box);
        EXPECT_EQ(BoxText(box), "Maximum tool count has been reached.");
        EXPECT_TRUE(Press(box, IDOK));
        editor.keys("{Esc}");
        ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const std::string file = folder.get("vConfig\\VexaTool.INF");
    EXPECT_EQ(file.size(), 1 + 15 * 815u);
    EXPECT_EQ(file.front(), 15);
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+F}{Right*5}");
    editor.takePicture("tools-menu");
    editor.keys("{Esc*3}");
    for (int i = 1; i <= 15; ++i) {
        editor.keys("{Shift+F" + std::to_string(i <= 4 ? i : i + 2) + "}");
        if (i > 10) {
            ASSERT_TRUE(inFront(editor.dialog("Program Arguments"))) << i;
            if (i == 15) editor.takePicture("program-arguments");
            editor.keys("{Enter}");
        }
        EXPECT_TRUE(WaitUntil([&] { return folder.has("made" + std::to_string(i)); })) << i;
        const bool isCaptured = i > 5 && i <= 10;
        EXPECT_TRUE(!isCaptured || editor.showsMessage("Command has completed.")) << i;
        EXPECT_TRUE(!isCaptured || isActive(editor, "Output Window")) << i;
    }
    EXPECT_EQ(folder.get("vConfig\\VexaTool.INF"), file);
}

}  // namespace
}  // namespace vexa::test

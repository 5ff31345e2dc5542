// Help files from their installation to the topic that is shown.
#include <gtest/gtest.h>

#include <cstdlib>

#include "quickhelp/topic_numbers.h"
#include "quickhelp/topics/help_file.h"
#include "quickhelp/topics/made_help_file.h"
#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

class QuickHelpWindowTest : public ::testing::Test {
  protected:
    QuickHelpWindowTest() {
        folder.put("vexa.ini", "[Editor Options]\r\nHelpViewer=Own\r\n");
        folder.makeDirectory("vHelp");
        folder.put("a.c", "beta gamma alpha");
    }
    void install(const std::string& name) const {
        folder.put(name + ".HLP", topics::test::MakeHelpFile());
        folder.put("vHelp\\" + name + ".ZIX",
                   "00002\r\n" + folder.path(name + ".HLP") + "\r\n" + name + "\r\nalpha\r\nbeta\r\n");
    }
    // Waits for the viewer with that caption.
    static bool viewerShows(const std::string& caption) {
        return WaitUntil([&] { return TextOf(FindWindowA("VexaHelp", nullptr)) == caption; });
    }
    static bool rowsAre(HWND dialog, int control, LRESULT count) {
        const HWND list = GetDlgItem(dialog, control);
        return WaitUntil([&] { return SendMessageA(list, LB_GETCOUNT, 0, 0) == count; });
    }
    static bool hasKeyboard(HWND window) {
        return WaitUntil([&] { return GetForegroundWindow() == window; });
    }

    // Of the program that a window belongs to.
    static HWND focusOf(HWND window) {
        GUITHREADINFO info{};
        info.cbSize = sizeof(info);
        GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
        return info.hwndFocus;
    }

    TestFolder folder;
};

TEST_F(QuickHelpWindowTest, AHelpFileIsInstalledAndShownAtTheWord) {
    folder.put("MADE.HLP", topics::test::MakeHelpFile());
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+Q}");
    EXPECT_TRUE(
        editor.showsMessage("No WinHelp files installed. Refer to 'Help Configuration' menu for more details."));
    editor.command(CommandId::ConfigureHelp);
    const HWND dialog = editor.dialog("Help Configuration");
    ASSERT_TRUE(hasKeyboard(dialog));
    editor.keys(" {Alt+A}");
    EXPECT_TRUE(rowsAre(dialog, IDC_HELP_INSTALLED, 1));
    editor.takePicture("help-configuration");
    EXPECT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(folder.has("vHelp\\MADE.ZIX"));
    editor.keys("{Alt+Q}");
    ASSERT_TRUE(viewerShows("Made - Second"));
    const HWND viewer = FindWindowA("VexaHelp", nullptr);
    ASSERT_TRUE(hasKeyboard(viewer));
    editor.takePicture("help-viewer");
    editor.keys("{Alt+C}");
    EXPECT_TRUE(viewerShows("Made - First"));
    editor.keys("{Tab}{Enter}");
    EXPECT_TRUE(viewerShows("Made - Second"));
    editor.keys("{Backspace}");
    EXPECT_TRUE(viewerShows("Made - First"));
    editor.keys("{Alt+G}");
    editor.takePicture("help-viewer-menu");
    editor.keys("b");
    EXPECT_TRUE(viewerShows("Made - Second"));
    editor.keys("{Alt+C}");
    EXPECT_TRUE(viewerShows("Made - First"));
    editor.keys("{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(viewer); }));
}

TEST_F(QuickHelpWindowTest, SeveralFilesLeaveTheChoiceAndNoneIsTold) {
    install("ONE");
    install("TWO");
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+Q}");
    const HWND dialog = editor.dialog("Quick Help");
    ASSERT_TRUE(hasKeyboard(dialog));
    EXPECT_TRUE(rowsAre(dialog, IDC_HELP_MATCHES, 2));
    EXPECT_TRUE(WaitUntil([&] { return focusOf(dialog) == GetDlgItem(dialog, IDC_HELP_MATCHES); }));
    editor.takePicture("quick-help-several");
    editor.keys("{Enter}");
    EXPECT_TRUE(viewerShows("Made - Second"));
    editor.keys("{Esc}");
    ASSERT_TRUE(hasKeyboard(editor.frame()));
    editor.keys("{Ctrl+Right}{Alt+Q}");
    EXPECT_TRUE(editor.showsMessage("Topic 'gamma' not found."));
}

TEST_F(QuickHelpWindowTest, ASearchedKeywordTakesTwoPressesOfOk) {
    install("ONE");
    const Editor editor(folder, {"a.c"});
    editor.keys("{Alt+F1}");
    const HWND dialog = editor.dialog("Quick Search");
    ASSERT_TRUE(hasKeyboard(dialog));
    editor.keys("BET{Enter}");
    EXPECT_TRUE(rowsAre(dialog, IDC_HELP_MATCHES, 1));
    EXPECT_TRUE(IsWindow(dialog));
    editor.keys("{Enter}");
    EXPECT_TRUE(viewerShows("Made - Second"));
}

TEST_F(QuickHelpWindowTest, AMissingHelpFileIsToldOf) {
    const Editor editor(folder, {"a.c"});
    editor.keys("{F1}");
    EXPECT_TRUE(editor.showsMessage("The help file '" + folder.path("Vexa.hlp") + "' cannot be shown."));
}

// What the viewer's caption is at a topic of the manual; at the contents for no number.
std::string CaptionAt(const TestFolder& folder, std::uint32_t number = 0) {
    const auto file = topics::HelpFile::open(folder.get("Vexa.hlp"));
    if (!file) return "no help file";
    const auto offset = file->index().offsetOfNumber(static_cast<std::int32_t>(number));
    const auto topic = offset ? file->topicAt(*offset) : file->contentsTopic();
    return file->system().title + " - " + file->topic(topic.value_or(0)).title;
}

std::string CaptionAt(const TestFolder& folder, CommandId id) {
    return CaptionAt(folder, static_cast<std::uint32_t>(id));
}

TEST_F(QuickHelpWindowTest, TheManualOpensWhereItIsAskedFor) {
    folder.putFromProgramFolder("Vexa.hlp");
    const Editor editor(folder, {"a.c"});
    editor.keys("{F1}");
    EXPECT_TRUE(viewerShows(CaptionAt(folder)));
    editor.takePicture("manual-contents");
    editor.command(CommandId::HelpOnKeys);
    EXPECT_TRUE(viewerShows(CaptionAt(folder, CommandId::HelpOnKeys)));
    editor.takePicture("manual-keys");
    editor.command(CommandId::HelpOnHelp);
    EXPECT_TRUE(viewerShows(CaptionAt(folder, CommandId::HelpOnHelp)));
    editor.keys("{Esc}");
    ASSERT_TRUE(hasKeyboard(editor.frame()));
    editor.keys("{Alt+F}{Down*3}{F1}");
    EXPECT_TRUE(viewerShows(CaptionAt(folder, CommandId::FileSave)));
    editor.takePicture("manual-from-menu");
    ASSERT_TRUE(hasKeyboard(FindWindowA("VexaHelp", nullptr))) << "the menu has let it go";
    editor.keys("{Esc}x");
    EXPECT_TRUE(editor.hasCaption("*"));
}

TEST_F(QuickHelpWindowTest, DialogsAreExplainedByTheirButtonAndKey) {
    folder.putFromProgramFolder("Vexa.hlp");
    const Editor editor(folder, {"a.c"});
    editor.command(CommandId::GotoLine);
    const HWND modal = editor.dialog("Goto Line");
    PostMessageA(modal, WM_COMMAND, IDHELP, 0);
    EXPECT_TRUE(viewerShows(CaptionAt(folder, kHelpOnDialogs + IDD_GOTO_LINE)));
    editor.takePicture("manual-from-dialog");
    EXPECT_TRUE(Press(modal, IDCANCEL));
    editor.command(CommandId::ChangeOptions);
    ASSERT_TRUE(hasKeyboard(editor.dialog("Editor Options")));
    editor.keys("{F1}");
    EXPECT_TRUE(viewerShows(CaptionAt(folder, kHelpOnDialogs + IDD_EDITOR_OPTIONS)));
    EXPECT_TRUE(Press(editor.dialog("Editor Options"), IDCANCEL));
    editor.command(CommandId::Find);
    ASSERT_TRUE(hasKeyboard(editor.dialog("Find")));
    editor.keys("{F1}");
    EXPECT_TRUE(viewerShows(CaptionAt(folder, kHelpOnDialogs + IDD_FIND)));
}

std::vector<std::string> RealHelpFiles() {
    const char* directory = std::getenv("VEXA_HELP_FILES");
    std::vector<std::string> paths;
    if (!directory) return paths;
    const std::string start = std::string("Z:") + directory + "\\";
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((start + "*.hlp").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return paths;
    do {
        paths.push_back(start + found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return paths;
}

TEST_F(QuickHelpWindowTest, RealHelpFilesOpen) {
    const std::vector<std::string> paths = RealHelpFiles();
    if (paths.empty()) GTEST_SKIP() << "VEXA_HELP_FILES names no directory with help files.";
    for (const std::string& path : paths) {
        const std::string name = path.substr(path.rfind('\\') + 1);
        ASSERT_TRUE(CopyFileA(path.c_str(), folder.path("Vexa.hlp").c_str(), FALSE)) << path;
        const Editor editor(folder, {"a.c"});
        editor.keys("{F1}");
        ASSERT_TRUE(WaitUntil([] { return FindWindowA("VexaHelp", nullptr) != nullptr; })) << name;
        ASSERT_TRUE(hasKeyboard(FindWindowA("VexaHelp", nullptr))) << name;
        editor.takePicture("help-" + name);
        editor.keys("{Tab}{Enter}");
        EXPECT_TRUE(editor.answers()) << name;
        editor.takePicture("help-" + name + "-link");
        editor.keys("{Tab}{Enter}");
        EXPECT_TRUE(editor.answers()) << name;
        editor.takePicture("help-" + name + "-second-link");
    }
}

}  // namespace
}  // namespace vexa::test

// Help files from their installation to the topic that is shown.
#include <gtest/gtest.h>

#include <cstdlib>

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

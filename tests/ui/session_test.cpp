// What is brought over from one run of the editor to the next.
#include <gtest/gtest.h>

#include <filesystem>

#include "ui/dde_client.h"
#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class SessionTest : public ::testing::Test {
  protected:
    SessionTest() {
        std::string text;
        for (int i = 1; i <= 100; ++i)
            text += "line\r\n";
        for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt"})
            folder.put(name, text);
    }
    static void end(const Editor& editor) {
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    static RECT placeOf(const Editor& editor) {
        RECT place;
        GetWindowRect(editor.frame(), &place);
        return place;
    }
    static bool has(const Editor& editor, std::size_t documents) {
        return WaitUntil([&] { return editor.documents().size() == documents; });
    }

    TestFolder folder;
};

TEST_F(SessionTest, SameFilesComeBackAtTheSameLines) {
    {
        const Editor editor(folder, {"a.txt", "b.txt"});
        ASSERT_TRUE(editor.hasCaption("b.txt]"));
        editor.keys("{Down*39}");
        ASSERT_TRUE(editor.showsPosition(40, 1));
        editor.keys("{Alt+N}{Down*29}");
        ASSERT_TRUE(editor.showsPosition(30, 1));
        end(editor);
    }
    {
        const Editor again(folder);
        ASSERT_TRUE(has(again, 2));
        ASSERT_TRUE(again.hasCaption("a.txt]"));
        EXPECT_TRUE(again.showsPosition(30, 1));
        again.keys("{Alt+N}");
        ASSERT_TRUE(again.hasCaption("b.txt]"));
        EXPECT_TRUE(again.showsPosition(40, 1));
        again.command(CommandId::CloseAll);
        ASSERT_TRUE(has(again, 0));
        end(again);
    }
    {
        const Editor nothing(folder, {"*.zzz"});
        ASSERT_TRUE(nothing.runCommand(CommandId::FileNew));
        EXPECT_TRUE(has(nothing, 1)) << "wildcards without a match open nothing, an untitled document neither";
    }
    const Editor last(folder);  // what was closed before the end does not come back
    EXPECT_TRUE(last.hasCaption("[untitled.txt]"));
    EXPECT_EQ(last.documents().size(), 1u);
}

TEST_F(SessionTest, FilesOfTheCommandLineComeAfterThoseOfTheLastSession) {
    { end(Editor(folder, {"a.txt"})); }
    const Editor again(folder, {"b.txt", "c.txt", "-l7"});
    EXPECT_TRUE(has(again, 3));
    EXPECT_TRUE(again.hasCaption("c.txt]"));
    EXPECT_TRUE(again.showsPosition(7, 1));
}

TEST_F(SessionTest, FileThatIsGoneIsReportedAndTheOthersOpen) {
    { end(Editor(folder, {"a.txt", "b.txt"})); }
    std::filesystem::remove(folder.path("b.txt"));
    {
        const StartedProgram started(folder, "");
        const HWND box = started.dialog("Vexa Error");
        ASSERT_TRUE(box);
        EXPECT_NE(BoxText(box).find("unable to open the file 'b.txt'"), std::string::npos) << BoxText(box);
        ASSERT_TRUE(Press(box, IDOK));
        EXPECT_TRUE(WaitUntil([&] {
            const auto windows = started.topWindows();
            return !windows.empty() && TextOf(windows[0]).find("a.txt]") != std::string::npos;
        }));
    }
}

TEST_F(SessionTest, ClosedFilesStandInTheFileMenuAndOpenFromIt) {
    {
        const Editor editor(folder, {"a.txt", "b.txt"});
        ASSERT_TRUE(editor.hasCaption("b.txt]"));
        editor.command(CommandId::FileClose);
        ASSERT_TRUE(editor.hasCaption("a.txt]"));
        editor.command(CommandId::FileClose);
        ASSERT_TRUE(has(editor, 0));
        editor.keys("{Alt+F}{Up}");
        EXPECT_TRUE(editor.showsMessage("Shutdown Vexa for Windows"));
        editor.takePicture("recent-files");
        editor.keys("{Up}{Enter}");  // just above: the file that was closed last
        EXPECT_TRUE(editor.hasCaption("a.txt]"));
        editor.command(CommandId::FileClose);
        ASSERT_TRUE(has(editor, 0));
        end(editor);
    }
    const Editor again(folder);
    again.keys("{Alt+F}{Up*3}{Enter}");
    EXPECT_TRUE(again.hasCaption("b.txt]"));
}

TEST_F(SessionTest, FrameStandsWhereItStood) {
    RECT kept;
    {
        const Editor editor(folder);
        SetWindowPos(editor.frame(), nullptr, 90, 70, 640, 420, SWP_NOZORDER);
        kept = placeOf(editor);
        end(editor);
    }
    {
        const Editor again(folder);
        const RECT place = placeOf(again);
        EXPECT_TRUE(EqualRect(&place, &kept));
        ShowWindow(again.frame(), SW_MAXIMIZE);
        ASSERT_TRUE(WaitUntil([&] { return IsZoomed(again.frame()); }));
        end(again);
    }
    EXPECT_NE(folder.get("vexa.INI").find("\r\nstate=3\r\n"), std::string::npos);
    const Editor last(folder);  // the state is only brought over when the options ask for it, the place always
    const RECT place = placeOf(last);
    EXPECT_FALSE(IsZoomed(last.frame()));
    EXPECT_TRUE(EqualRect(&place, &kept));
}

TEST_F(SessionTest, FrameIsNeverOffTheScreen) {
    for (const char* place : {"x=9000\r\ny=50\r\n", "x=-9000\r\ny=-9000\r\n"}) {
        folder.put("vexa.INI", std::string("[Frame Size]\r\n") + place + "cx=600\r\ncy=400\r\nstate=1\r\n");
        const Editor editor(folder);
        const RECT frame = placeOf(editor);
        const POINT caption{(frame.left + frame.right) / 2, frame.top + 10};
        EXPECT_TRUE(MonitorFromPoint(caption, MONITOR_DEFAULTTONULL)) << place;
    }
}

TEST_F(SessionTest, WorkingDirectoryComesBack) {
    folder.makeDirectory("elsewhere");
    { end(Editor(folder)); }
    const Editor again(folder, {}, folder.path("elsewhere"));
    EXPECT_TRUE(ExecuteByDde("[open(\"c.txt\")]"));
    EXPECT_TRUE(again.hasCaption("c.txt]"));
    EXPECT_EQ(TextOf(again.frame()), "Vexa 95 - [c.txt - " + folder.path() + "]");
}

TEST_F(SessionTest, KilledEditorLosesNothingThatWasSaved) {
    { end(Editor(folder, {"a.txt", "b.txt"})); }
    const std::string settings = folder.get("vexa.INI");
    {
        Editor editor(folder, {"c.txt", "d.txt"});
        ASSERT_TRUE(editor.hasCaption("d.txt]"));
        editor.keys("saved {Alt+W}");
        ASSERT_TRUE(editor.showsMessage("Write successful."));
        editor.keys("lost ");
        ASSERT_TRUE(editor.showsPosition(1, 12));
        editor.command(CommandId::FileClose);
        ASSERT_TRUE(editor.dialog("Vexa 95"));
        editor.kill();
    }
    EXPECT_EQ(folder.get("d.txt").substr(0, 12), "saved line\r\n");
    const std::string after = folder.get("vexa.INI");
    for (const char* section : {"[Editor Options]\r\n", "[History]\r\n", "[Frame Size]\r\n", "TabSize=4\r\n"})
        EXPECT_NE(after.find(section), std::string::npos) << section << after;
    EXPECT_NE(settings.find("StartupFile:0="), std::string::npos);
    const Editor again(folder, {"a.txt"});
    EXPECT_TRUE(again.hasCaption("a.txt]"));
}

}  // namespace
}  // namespace vexa::test

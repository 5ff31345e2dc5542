// Recording keys and playing them again.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

class MacroTest : public ::testing::Test {
  protected:
    MacroTest() { folder.put("a.txt", "one 1\r\ntwo 2\r\nthree 3\r\nfour 4\r\nfive 5\r\n"); }

    // Records what puts a sign before a line and takes its last two characters away.
    static void recordOn(const Editor& editor) {
        editor.keys("{F7}");
        ASSERT_TRUE(editor.showsMessage("Macro recording started"));
        editor.keys("> {End}{Left*2}{Alt+A}{Right*2}{Del}{Down}{Home}");
        editor.keys("{F7}");
        ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    }
    std::string saved(const Editor& editor, const std::string& expected) const {
        editor.command(CommandId::FileSave);
        return folder.getOnce("a.txt", expected);
    }

    TestFolder folder;
};

TEST_F(MacroTest, PlaybackDoesWhatTheKeysDid) {
    const Editor editor(folder, {"a.txt"});
    recordOn(editor);
    editor.keys("{F8}");
    ASSERT_TRUE(editor.showsMessage("Macro playback complete"));
    EXPECT_TRUE(editor.showsPosition(3, 1));
    const std::string expected = "> one\r\n> two\r\nthree 3\r\nfour 4\r\nfive 5\r\n";
    EXPECT_EQ(saved(editor, expected), expected);
}

TEST_F(MacroTest, RepeatedPlaybackPlaysAsOftenAsAskedFor) {
    const Editor editor(folder, {"a.txt"});
    recordOn(editor);
    editor.keys("{Ctrl+R}");
    HWND dialog = editor.dialog("Macro Repeat");
    ASSERT_TRUE(dialog);
    editor.takePicture("macro-repeat");
    editor.keys("0{Enter}");
    ASSERT_TRUE(editor.showsMessage("The number of playbacks must be 1 to 9999."));
    EXPECT_TRUE(IsWindow(dialog));
    editor.keys("3{Enter}");
    ASSERT_TRUE(editor.showsMessage("Macro playback complete"));
    const std::string expected = "> one\r\n> two\r\n> three\r\n> four\r\nfive 5\r\n";
    EXPECT_EQ(saved(editor, expected), expected);
    editor.keys("{Ctrl+R}");
    ASSERT_TRUE(dialog = editor.dialog("Macro Repeat"));
    EXPECT_EQ(TextOf(ChildrenOf(dialog, "Edit").at(0)), "3");
    editor.keys("{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !editor.hasDialog(); }));
    EXPECT_EQ(saved(editor, expected), expected);
}

TEST_F(MacroTest, RepeatedPlaybackStopsAtThePlayThatFails) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{Ctrl+R}");
    ASSERT_TRUE(editor.dialog("Macro Repeat"));
    editor.keys("9999{Enter}");
    EXPECT_TRUE(editor.showsMessage("No macro recorded!"));
    EXPECT_FALSE(editor.hasDialog());
    EXPECT_FALSE(NameShownBy(editor.activeDocument()).ends_with(" *"));
}

TEST_F(MacroTest, WhatCannotBeDoneIsRefusedInTheStatusBar) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{F8}");
    EXPECT_TRUE(editor.showsMessage("No macro recorded!"));
    editor.keys("{F7}{F8}");
    EXPECT_TRUE(editor.showsMessage("Can't playback macro while recording!"));
    editor.takePicture("macro-refused");
    EXPECT_EQ(editor.recording(), "REC");
    EXPECT_GT(editor.paneWidth(1), 0);
    const char* const kUnrecorded = "You can't record this action as a macro!";
    for (const CommandId id : {CommandId::ToggleToolBar, CommandId::Copy}) {
        editor.command(id);
        EXPECT_TRUE(editor.showsMessage(kUnrecorded)) << static_cast<int>(id);
        editor.keys("{Esc}");  // a key of the text
        EXPECT_TRUE(editor.showsMessage(""));
    }
    editor.click({5, 5});
    EXPECT_TRUE(editor.showsMessage(kUnrecorded));
    editor.takePicture("macro-recording");
    editor.keys("{F7}");
    EXPECT_TRUE(editor.showsMessage("Macro recording complete"));
    EXPECT_EQ(editor.recording(), "");
    EXPECT_EQ(editor.paneWidth(1), 0) << "an empty pane takes no room";
}

TEST_F(MacroTest, KeysWaitForTheEndOfAPlaybackAndEscStopsIt) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{F7}ab{Backspace}{F7}");
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{Ctrl+R}");
    ASSERT_TRUE(editor.dialog("Macro Repeat"));
    editor.keys("50{Enter}zZ{Ctrl+Home}q{Ctrl+S}");
    const std::string expected = "q" + std::string(51, 'a') + "zZone 1\r\ntwo 2\r\nthree 3\r\nfour 4\r\nfive 5\r\n";
    EXPECT_EQ(folder.getOnce("a.txt", expected), expected);
    EXPECT_TRUE(editor.showsPosition(1, 2));
    editor.keys("{Home}{F7}{Left}{F7}");  // at the start of the line, where it stays
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{Ctrl+R}");
    ASSERT_TRUE(editor.dialog("Macro Repeat"));
    editor.keys("9999{Enter}x");
    editor.command(CommandId::PlayMacro);  // while it plays, with a key waiting
    editor.keys("{Esc}");
    EXPECT_TRUE(editor.showsMessage("Macro playback stopped."));
    editor.keys("y");
    EXPECT_TRUE(editor.showsPosition(1, 2)) << "what was typed before Esc is dropped with the rest";
}

TEST_F(MacroTest, CanceledRecordingKeepsTheOldMacroAndAnotherOneTakesItsPlace) {
    const Editor editor(folder, {"a.txt"});
    editor.keys("{F7}1{F7}");
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{F7}{F7}");
    ASSERT_TRUE(editor.showsMessage("Macro recording was canceled"));
    editor.keys("{F8}");
    ASSERT_TRUE(editor.showsMessage("Macro playback complete"));
    ASSERT_TRUE(editor.showsPosition(1, 3));
    editor.keys("{F7}2{Ctrl+End}{F7}");  // a command is played among the keys
    ASSERT_TRUE(editor.showsMessage("Macro recording complete"));
    editor.keys("{Ctrl+Home}{F8}");
    ASSERT_TRUE(editor.showsMessage("Macro playback complete"));
    EXPECT_TRUE(editor.showsPosition(5, 7));
    const std::string expected = "2112one 1\r\ntwo 2\r\nthree 3\r\nfour 4\r\nfive 5\r\n";
    EXPECT_EQ(saved(editor, expected), expected);
}

}  // namespace
}  // namespace vexa::test

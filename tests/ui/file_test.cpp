// Opening and saving: names, dialogs, and files that cannot be had.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

TEST(File, WithoutANameThereIsANewDocumentWhoseFirstSaveAsksForOne) {
    const TestFolder folder;
    const Editor editor(folder);
    ASSERT_TRUE(editor.hasCaption("[untitled.txt]"));
    editor.takePicture("untitled");
    editor.keys("fresh{Alt+W}");
    const HWND dialog = editor.dialog("Save As");
    ASSERT_TRUE(dialog);
    editor.takePicture("save-as");
    ASSERT_TRUE(EnterFileName(dialog, folder.path("made.c")));
    EXPECT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_TRUE(editor.hasCaption("made.c]"));
    EXPECT_EQ(folder.get("made.c"), "fresh\r\n");
}

TEST(File, CancelledSaveAsLeavesTheDocumentChanged) {
    const TestFolder folder;
    const Editor editor(folder);
    editor.keys("fresh");
    ASSERT_TRUE(editor.showsPosition(1, 6));
    editor.command(CommandId::FileSaveAs);
    const HWND dialog = editor.dialog("Save As");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(Press(dialog, IDCANCEL));
    EXPECT_TRUE(editor.hasCaption("[untitled.txt *]"));
}

TEST(File, MissingFileGivesAnEmptyDocumentOfThatName) {
    const TestFolder folder;
    const Editor editor(folder, {"none.txt"});
    ASSERT_TRUE(editor.hasCaption("none.txt]"));
    EXPECT_FALSE(editor.hasDialog());
    editor.keys("x{Alt+W}");
    EXPECT_TRUE(editor.dialog("Save As"));
    EXPECT_FALSE(folder.has("none.txt"));
}

TEST(File, WhatCannotBeOpenedIsToldAndTheOthersOpen) {
    const TestFolder folder;
    folder.makeDirectory("folder");
    folder.put("a.txt", "a\r\n");
    const Editor editor(folder, {"folder", "a.txt"});
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box),
              "The program was unable to open the file 'folder' for \n editing. "
              "The loading of this file has failed!");
    ASSERT_TRUE(Press(box, IDOK));
    EXPECT_TRUE(editor.hasCaption("a.txt]"));
    EXPECT_EQ(editor.documents().size(), 1u);
}

TEST(File, WriteProtectedFileIsToldAndTheChangesStay) {
    const TestFolder folder;
    folder.put("locked.txt", "a\r\n");
    folder.setReadOnly("locked.txt");
    const Editor editor(folder, {"locked.txt"});
    editor.keys("x{Alt+W}");
    const HWND box = editor.dialog("Vexa Error");
    ASSERT_TRUE(box);
    EXPECT_EQ(BoxText(box),
              "The program was unable to write to the file 'locked.txt'.\n"
              " The file may be write protected!");
    editor.takePicture("write-protected");
    ASSERT_TRUE(Press(box, IDOK));
    EXPECT_TRUE(editor.hasCaption("locked.txt *]"));
    editor.keys("{Ctrl+Z}");
    EXPECT_TRUE(editor.hasCaption("locked.txt]"));
    EXPECT_EQ(folder.get("locked.txt"), "a\r\n");
}

TEST(File, OpenDialogOpensWhatIsNamedAndGoesToWhatIsOpen) {
    for (const bool explorer : {false, true}) {
        const TestFolder folder;
        folder.put("vexa.INI", std::string("[Editor Options]\r\nUseExplorer=") + (explorer ? "1" : "0") + "\r\n");
        folder.put("a.txt", "a\r\n");
        folder.put("my file.txt", "b\r\n");
        const Editor editor(folder, {"a.txt"});
        editor.keys("{Alt+E}");
        HWND dialog = editor.dialog("Open");
        ASSERT_TRUE(dialog);
        editor.takePicture(explorer ? "open-explorer" : "open-old");
        ASSERT_TRUE(EnterFileName(dialog, folder.path("my file.txt")));
        ASSERT_TRUE(editor.hasCaption("my file.txt]"));
        editor.command(CommandId::FileOpen);
        ASSERT_TRUE(dialog = editor.dialog("Open"));
        ASSERT_TRUE(EnterFileName(dialog, folder.path("A.TXT")));
        EXPECT_TRUE(editor.hasCaption("a.txt]"));
        EXPECT_EQ(editor.documents().size(), 2u);
    }
}

TEST(File, SeveralFilesAreOpenedAtOnce) {
    const TestFolder folder;
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        folder.put(name, "x\r\n");
    const Editor editor(folder, {"c.txt"});
    editor.command(CommandId::FileOpen);
    const HWND dialog = editor.dialog("Open");
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(EnterFileName(dialog, "a.txt b.txt"));
    EXPECT_TRUE(WaitUntil([&] { return editor.documents().size() == 3; }));
    EXPECT_TRUE(editor.hasCaption("b.txt]"));
}

TEST(File, SecondWindowOnAFileOnlyWhenAskedFor) {
    const TestFolder folder;
    folder.put("a.txt", "a\r\n");
    {
        const Editor editor(folder, {"a.txt", "A.TXT"});
        ASSERT_TRUE(editor.hasCaption("a.txt]"));
        EXPECT_EQ(editor.documents().size(), 1u);
    }
    folder.put("vexa.INI", "[Editor Options]\r\nMultipleCopies=1\r\n");
    const Editor editor(folder, {"a.txt", "a.txt"});
    EXPECT_TRUE(WaitUntil([&] { return editor.documents().size() == 2; }));
}

TEST(File, SaveAllWritesEveryChangedDocument) {
    const TestFolder folder;
    folder.put("a.txt", "a\r\n");
    folder.put("b.txt", "b\r\n");
    const Editor editor(folder, {"a.txt", "b.txt"});
    editor.keys("2{Alt+N}1");
    ASSERT_TRUE(editor.hasCaption("a.txt *]"));
    editor.command(CommandId::FileNew);
    ASSERT_TRUE(editor.hasCaption("[untitled.txt]"));
    editor.command(CommandId::FileSaveAll);
    ASSERT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_FALSE(editor.hasDialog());
    EXPECT_EQ(folder.get("a.txt") + folder.get("b.txt"), "1a\r\n2b\r\n");
}

}  // namespace
}  // namespace vexa::test

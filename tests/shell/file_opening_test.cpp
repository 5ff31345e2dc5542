#include "shell/file_opening.h"

#include <gtest/gtest.h>

#include "base/directories.h"
#include "base/file.h"
#include "shell/hand_off.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

// Notes what it is asked to do, a word and the line index each.
class ScriptedFrame : public DocumentFrame {
  public:
    bool activateShowing(const std::string& path, LineIndex line) override {
        if (path != shown) return false;
        log += "activate " + std::to_string(line.value) + ";";
        return true;
    }
    bool openWindow(const std::optional<std::string>& path, LineIndex line) override {
        log += "open " + path.value_or("new").substr(path ? path->rfind('\\') + 1 : 0) + " " +
               std::to_string(line.value) + ";";
        return path != refused;
    }
    void bringToFront() override { log += "front;"; }
    void restoreIfMinimised() override { log += "restore;"; }

    std::string shown;
    std::string refused;
    std::string log;
};

class FileOpeningTest : public testing::Test {
  protected:
    std::string takeLog() { return std::exchange(frame_.log, {}); }

    test::TestDisk disk_;
    test::RecordingNotices notices_;
    EditorOptions options_;
    ScriptedFrame frame_;
    FileOpening opening_{frame_, options_, notices_};
};

TEST_F(FileOpeningTest, AFileIsShownInItsWindowUnlessCopiesAreWanted) {
    frame_.shown = disk_.path("a.c");
    EXPECT_TRUE(opening_.OpenFileAtLine("a.c", 20));
    EXPECT_EQ(takeLog(), "activate 19;");
    options_.MultipleCopies = true;
    EXPECT_TRUE(opening_.OpenFileAtLine("a.c", 20));
    EXPECT_EQ(takeLog(), "open a.c 19;");
    EXPECT_EQ(notices_.busyCount, 2);
    EXPECT_EQ(notices_.busyDepth, 0);
}

TEST_F(FileOpeningTest, LinesBelowOneAreTheFirst) {
    for (const int line : {1, 0, -1, -2147483647 - 1})
        EXPECT_TRUE(opening_.OpenFileAtLine("a.c", line));
    EXPECT_EQ(takeLog(), "open a.c 0;open a.c 0;open a.c 0;open a.c 0;");
    EXPECT_TRUE(opening_.OpenFileAtLine(std::nullopt, 5));
    EXPECT_EQ(takeLog(), "open new 4;");
}

TEST_F(FileOpeningTest, CommandLineFilesAreCountedWhenTheyAreOpened) {
    frame_.refused = disk_.path("b.c");
    const std::vector<FileAtLine> files = {{"a.c", 5}, {"b.c", 5}, {"c.c", 0}};
    EXPECT_EQ(opening_.OpenCommandLineFiles(files), 2);
    EXPECT_EQ(takeLog(), "open a.c 4;open b.c 4;open c.c 0;");
    EXPECT_EQ(opening_.OpenCommandLineFiles({}), 0);
}

TEST_F(FileOpeningTest, AHandedOverFileIsOpenedAndItsMessageDeleted) {
    const std::string file = DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT";
    WriteWholeFile(file, "C:\\A.C\r\n20\r\n");
    opening_.ReceiveHandOff();
    EXPECT_EQ(takeLog(), "front;open A.C 19;restore;");
    EXPECT_FALSE(platform::PathExists(file));
    WriteWholeFile(file, "");
    opening_.ReceiveHandOff();
    EXPECT_EQ(takeLog(), "front;restore;") << "no name, no file";
    EXPECT_FALSE(platform::PathExists(file));
    EXPECT_TRUE(notices_.boxes.empty());
    opening_.ReceiveHandOff();
    EXPECT_EQ(takeLog(), "");
    EXPECT_EQ(notices_.boxes.size(), 1u);
}

TEST_F(FileOpeningTest, DroppedFilesAreOpenedInTheirOrderUntilTheProgramEnds) {
    const std::vector<std::string> names = {"C:\\B", "C:\\A", "C:\\C"};
    opening_.OpenDroppedFiles(names);
    EXPECT_EQ(takeLog(), "front;front;open B 0;front;open A 0;front;open C 0;restore;");
    EXPECT_EQ(notices_.pumpCount, 3);
    notices_.quitAtPump = 5;
    opening_.OpenDroppedFiles(names);
    EXPECT_EQ(takeLog(), "front;front;open B 0;front;restore;");
}

TEST_F(FileOpeningTest, DdeExecutesOfOneFormAreTheEditors) {
    const std::pair<const char*, std::optional<std::string>> cases[] = {
        {"[open(\"C:\\A B.C\")]", "C:\\A B.C"},
        {"[open(\"a.c\" and anything", "a.c"},
        {"[open(\"\")]", ""},
        {"[open(\"a.c", std::nullopt},
        {"[OPEN(\"a.c\")]", std::nullopt},
        {" [open(\"a.c\")]", std::nullopt},
        {"[open(a.c)]", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [text, file] : cases)
        EXPECT_EQ(FileOfDdeExecute(text), file) << text;
    EXPECT_TRUE(opening_.ExecuteDde("[open(\"C:\\A.C\")]"));
    EXPECT_FALSE(opening_.ExecuteDde("[print(\"C:\\A.C\")]"));
    EXPECT_EQ(takeLog(), "open A.C 0;");
}

}  // namespace
}  // namespace vexa

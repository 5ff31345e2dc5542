#include "shell/file_opening.h"

#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>
#endif

#include "base/directories.h"
#include "base/file.h"
#include "base/strings.h"
#include "document/text/text_document.h"
#include "shell/outside_opens.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

// Notes what it is asked to do, a word and the line index each.
class ScriptedFrame : public OutsideFrame {
  public:
    bool activateShowing(const std::string& path, TextPosition at) override {
        if (path != shown) return false;
        log += "activate " + std::to_string(at.line.value) + ";";
        return true;
    }
    bool openWindow(const std::optional<std::string>& path, TextPosition at) override {
        log += "open " + path.value_or("new").substr(path ? path->rfind('\\') + 1 : 0) + " " +
               std::to_string(at.line.value) + (at.column.value > 0 ? ":" + std::to_string(at.column.value) : "") + ";";
        return path != refused;
    }
    void bringToFront() override { log += "front;"; }
    void restoreIfMinimised() override { log += "restore;"; }
    bool isFree() const override { return free; }
    void openWaitingSoon() override { log += "soon;"; }
    const TextDocument* documentOf(const std::string&) const override { return document; }

    bool free = true;
    const TextDocument* document = nullptr;

    std::string shown;
    std::string refused;
    std::string log;
};

bool HasFreeTurn(const DocumentWait& wait) {
    return platform::SystemTurn(SharedWait(wait.number()).turn(), 0).isMine();
}

#ifdef _WIN32
DWORD WINAPI Asks(void* wait) {
    return HasFreeTurn(*static_cast<const DocumentWait*>(wait)) ? 1 : 0;
}
#endif

class FileOpeningTest : public testing::Test {
  protected:
    // As another process sees it: on Windows a turn is had again by the thread that has it.
    static bool isFree(const DocumentWait& wait) {
#ifdef _WIN32
        const HANDLE asks = CreateThread(nullptr, 0, &Asks, const_cast<DocumentWait*>(&wait), 0, nullptr);
        DWORD isFree = 0;
        WaitForSingleObject(asks, INFINITE);
        GetExitCodeThread(asks, &isFree);
        CloseHandle(asks);
        return isFree != 0;
#else
        return HasFreeTurn(wait);
#endif
    }
    std::string takeLog() {
        return std::exchange(frame_.log, {});
    }

    test::TestDisk disk_;
    test::RecordingNotices notices_;
    EditorOptions options_;
    ScriptedFrame frame_;
    FileOpening opening_{frame_, options_, notices_};
    OutsideOpens outside_{opening_, frame_, notices_};
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

TEST_F(FileOpeningTest, NamesThatCannotBeAFilesAreRefused) {
    for (const std::string& name : {std::string("a|b.c"), std::string("C:\\NUL"), std::string("C:\\com1.c"),
                                    std::string("C:\\") + std::string(257, 'x'), std::string("a\0b", 3)})
        EXPECT_FALSE(opening_.OpenFileAtLine(name, 1)) << name;
    EXPECT_EQ(notices_.boxes.size(), 5u);
    EXPECT_EQ(takeLog(), "");
    EXPECT_TRUE(opening_.OpenFileAtLine("C:\\" + std::string(256, 'x'), 1));
}

TEST_F(FileOpeningTest, LeftSafetyCopiesAreOfferedUntilTheUserHasDecided) {
    constexpr auto kYes = BoxAnswer::Yes;
    constexpr auto kNo = BoxAnswer::No;
    const auto copy = disk_.path("a.c.vx1");
    struct Case {
        const char* contents;
        std::deque<BoxAnswer> answers;
        std::string lastQuestion;
        const char* log;
        const char* left;  // the copy's name afterwards
    };
    const std::string kept = copy + "k0";
    const Case cases[] = {
        {"same", {kYes}, FillText(TextId::LeftCopyIsEqual, {"a.c", copy}), "open a.c 0;", nullptr},
        {"same", {kNo}, FillText(TextId::LeftCopyIsEqual, {"a.c", copy}), "open a.c 0;", "a.c.vx1k0"},
        {"other", {kYes}, FillText(TextId::LeftCopyDiffers, {"a.c", copy}), "open a.c 0;open a.c.vx1 0;", "a.c.vx1"},
        {"other", {kNo, kYes}, FillText(TextId::DeleteLeftCopy, {copy, kept}), "open a.c 0;", nullptr},
        {"other", {kNo, kNo}, FillText(TextId::DeleteLeftCopy, {copy, kept}), "open a.c 0;", "a.c.vx1k0"},
    };
    disk_.put("a.c", "same");
    for (const Case& c : cases) {
        disk_.put("a.c.vx1", c.contents);
        notices_.answers = c.answers;
        EXPECT_TRUE(opening_.OpenFileAtLine(disk_.path("a.c"), 1));
        EXPECT_EQ(takeLog(), c.log);
        EXPECT_EQ(notices_.boxes.back().text, c.lastQuestion);
        EXPECT_EQ(disk_.count(), c.left ? 2u : 1u);
        if (!c.left) continue;
        EXPECT_EQ(disk_.get(c.left), c.contents);
        platform::RemoveFile(disk_.path(c.left));
    }
}

TEST_F(FileOpeningTest, TheLatestOfSeveralCopiesIsSpokenOfFirst) {
    disk_.put("a.c", "now");
    disk_.put("a.c.vx7", "older");
    const auto older = platform::FactsOf(disk_.path("a.c.vx7"))->stamp.writeTime;
    do {
        disk_.put("a.c.vx2", "later");
    } while (platform::FactsOf(disk_.path("a.c.vx2"))->stamp.writeTime == older);
    notices_.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    EXPECT_TRUE(opening_.OpenFileAtLine(disk_.path("a.c"), 1));
    EXPECT_EQ(takeLog(), "open a.c 0;open a.c.vx2 0;open a.c.vx7 0;");
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

TEST_F(FileOpeningTest, AHandedOverFileIsOpenedAfterwardsAndItsMessageDeleted) {
    const std::string file = DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT";
    for (const auto& [bytes, opened] : {std::pair{"C:\\A.C\r\n20\r\n", "open A.C 19;"}, std::pair{"", ""}}) {
        WriteWholeFile(file, bytes);
        outside_.receiveHandOff(platform::Ticks());
        EXPECT_EQ(takeLog(), "soon;");
        EXPECT_FALSE(platform::PathExists(file));
        outside_.openWaiting();
        EXPECT_EQ(takeLog(), std::string("front;restore;") + opened);
    }
    outside_.openWaiting();
    EXPECT_EQ(takeLog(), "");
}

TEST_F(FileOpeningTest, AStartWaitsUntilItsDocumentIsClosedOrCannotBeOpened) {
    const TextDocument document(options_, notices_);
    const TextDocument another(options_, notices_);
    const DocumentWait closed;
    const DocumentWait refused;
    for (const DocumentWait* wait : {&closed, &refused}) {
        ASSERT_TRUE(HandOffFile({"C:\\a.c", 3, 5, wait->number()}, notices_));
        outside_.receiveHandOff(platform::Ticks());
        EXPECT_TRUE(AwaitReading());
        EXPECT_FALSE(isFree(*wait)) << "it is on its way";
        frame_.document = wait == &closed ? &document : nullptr;
        outside_.openWaiting();
        EXPECT_EQ(takeLog(), "soon;front;restore;open a.c 2:4;");
    }
    EXPECT_TRUE(isFree(refused));
    EXPECT_FALSE(refused.awaitEnd()) << "the user has not closed it";
    outside_.documentCloses(another);
    EXPECT_FALSE(isFree(closed));
    outside_.documentCloses(document);
    EXPECT_TRUE(isFree(closed));
    EXPECT_TRUE(closed.awaitEnd());
}

TEST_F(FileOpeningTest, WhatComesFromOutsideWaitsForTheEndOfADialog) {
    frame_.free = false;
    EXPECT_TRUE(outside_.executeDde("[open(\"C:\\A\")]"));
    outside_.add({"C:\\B", 0});
    outside_.openWaiting();
    EXPECT_EQ(takeLog(), "soon;soon;front;restore;") << "the user finds the dialog";
    frame_.free = true;
    outside_.openWaiting();
    EXPECT_EQ(takeLog(), "front;restore;open A 0;open B 0;");
    EXPECT_FALSE(outside_.executeDde("[print(\"C:\\A.C\")]"));
    EXPECT_EQ(takeLog(), "");
}

TEST_F(FileOpeningTest, BroadcastsWithoutAFileAreToldOnceUnlessTheirFileWasTaken) {
    const std::uint32_t before = platform::Ticks();
    for (int i = 0; i < 50; ++i)
        outside_.receiveHandOff(before + 1000);  // later than anything was taken
    outside_.openWaiting();
    const test::BoxNotice told{FillText(TextId::UnexpectedError, {"VXEAPP01", "2173"}), "Vexa Error", BoxButtons::Ok};
    EXPECT_EQ(notices_.boxes, std::vector{told});
    WriteWholeFile(DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT", "C:\\A.C\r\n-1\r\n");
    outside_.receiveHandOff(before);
    outside_.receiveHandOff(before);
    OutsideOpens another(opening_, frame_, notices_);
    another.receiveHandOff(before);
    outside_.openWaiting();
    another.openWaiting();
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
}

}  // namespace
}  // namespace vexa

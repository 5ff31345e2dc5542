// What is remembered from one session to the next: recent files, open files, the frame's place.
#include <gtest/gtest.h>

#include <set>

#include "base/strings.h"
#include "shell/closing_order.h"
#include "shell/frame_placement.h"
#include "shell/recent_files.h"
#include "shell/session_documents.h"
#include "shell/startup_files.h"
#include "support/test_disk.h"

namespace vexa {

void PrintTo(const RecentFileRow& row, std::ostream* out) {
    *out << static_cast<int>(row.id) << " " << row.text;
}

namespace {

class Session : public testing::Test {
  protected:
    std::string history(const char* key) const { return store_.ReadString("History", key, "none", 256); }
    void setHistory(const char* key, const char* value) { store_.WriteString("History", key, value); }

    test::TestDisk disk_;
    ConfigStore store_{disk_.path("VEXA.INI")};
};

// ---- recent files ------------------------------------------------------------------------------------------------

using Rows = std::vector<RecentFileRow>;
constexpr CommandId k210 = CommandId::FirstRecentFile;
constexpr CommandId k211 = CommandId::SecondRecentFile;

TEST_F(Session, TheTwoFilesClosedLastAreInTheMenu) {
    RecentFiles recent;
    recent.LoadRecentFiles(store_, true);
    EXPECT_EQ(recent.menuRows(), Rows{});
    recent.RecordRecentFile("C:\\A");
    EXPECT_EQ(recent.menuRows(), (Rows{{k210, "C:\\A"}}));
    recent.RecordRecentFile("C:\\B");
    recent.RecordRecentFile("c:\\a");
    EXPECT_EQ(recent.menuRows(), (Rows{{k210, "C:\\A"}, {k211, "C:\\B"}})) << "one that is there stays";
    recent.RecordRecentFile("C:\\C&D");
    EXPECT_EQ(recent.menuRows(), (Rows{{k210, "C:\\C&&D"}, {k211, "C:\\B"}}));
    EXPECT_EQ(recent.path(k210), "C:\\C&D");
    EXPECT_EQ(recent.path(CommandId{212}), "");

    recent.SaveRecentFiles(store_);
    EXPECT_EQ(history("MenuFile:1"), "C:\\C&D") << "written from the next slot on";
    EXPECT_EQ(history("MenuFile:0"), "C:\\B");
    EXPECT_EQ(history("MenuIndex"), "1");
}

TEST_F(Session, ASecondSessionGoesOnWithTheRecentFiles) {
    RecentFiles first;
    first.LoadRecentFiles(store_, true);
    first.RecordRecentFile("C:\\A");
    first.SaveRecentFiles(store_);
    RecentFiles second;
    second.LoadRecentFiles(store_, true);
    EXPECT_EQ(second.menuRows(), (Rows{{k211, "C:\\A"}}));
    second.RecordRecentFile("C:\\B");
    EXPECT_EQ(second.menuRows(), (Rows{{k211, "C:\\A"}, {k210, "C:\\B"}})) << "a free place is taken first";
    second.RecordRecentFile("C:\\C");
    EXPECT_EQ(second.menuRows(), (Rows{{k211, "C:\\C"}, {k210, "C:\\B"}})) << "then that of the older";
}

TEST_F(Session, WithoutRestoringTheRecentFilesAreKeptButNotShown) {
    setHistory("MenuFile:0", "C:\\A");
    setHistory("MenuFile:1", "C:\\B");
    setHistory("MenuIndex", "77");
    RecentFiles recent;
    recent.LoadRecentFiles(store_, false);
    EXPECT_EQ(recent.menuRows(), Rows{});
    recent.RecordRecentFile("C:\\C");
    EXPECT_EQ(recent.menuRows(), (Rows{{k210, "C:\\C"}}));
    recent.SaveRecentFiles(store_);
    RecentFiles again;
    again.LoadRecentFiles(store_, true);
    EXPECT_EQ(again.menuRows(), (Rows{{k210, "C:\\B"}, {k211, "C:\\C"}}));
}

TEST_F(Session, ALongListHasTheFileClosedLastAtItsTop) {
    setHistory("MenuFile:1", "C:\\Old");
    RecentFiles recent;
    recent.LoadRecentFiles(store_, true, true);
    recent.RecordRecentFile("C:\\A");
    EXPECT_EQ(recent.menuRows(), (Rows{{k210, "C:\\A"}, {k211, "C:\\Old"}})) << "which leaves no gap";
    for (const char c : std::string("BCDEFGHIJKLMNOP"))
        recent.RecordRecentFile(std::string("C:\\") + c);
    recent.RecordRecentFile("c:\\n");
    recent.SaveRecentFiles(store_);
    RecentFiles again;
    again.LoadRecentFiles(store_, true, true);
    std::string shown;
    for (const RecentFileRow& row : again.menuRows())
        shown += row.text.substr(3);
    EXPECT_EQ(shown, "nPOMLKJIHGFEDCBA");
    EXPECT_EQ(again.path(CommandId{225}), "C:\\A");
    EXPECT_EQ(history("MenuFile:0"), "c:\\n");
    again.LoadRecentFiles(store_, false, true);
    EXPECT_EQ(again.menuRows(), Rows{});
    again.RecordRecentFile("C:\\P");
    EXPECT_EQ(again.menuRows(), (Rows{{k210, "C:\\P"}})) << "of those that are not shown";
}

// ---- all documents -----------------------------------------------------------------------------------------------

TEST_F(Session, AnyNumberOfDocumentsIsKeptWithTheirPositions) {
    std::vector<SessionDocument> documents(1000);
    for (std::size_t i = 0; i < documents.size(); ++i) {
        documents[i].path = "C:\\My file " + std::to_string(i);
        documents[i].caret = {LineIndex(static_cast<std::int32_t>(i)), CharColumn(7)};
        documents[i].bookmarks.drop(static_cast<std::int32_t>(i % 10), LineIndex(5));
        documents[i].isActive = i == 500;
    }
    SessionFile file(disk_.path("SESSION.TXT"));
    file.keep(documents);
    const std::vector<SessionDocument> taken = file.take();
    ASSERT_EQ(taken.size(), documents.size());
    EXPECT_EQ(SessionText(taken), SessionText(documents));
    EXPECT_EQ(taken[999].path, "C:\\My file 999");
    EXPECT_EQ(taken[999].caret, documents[999].caret);
    EXPECT_EQ(taken[999].bookmarks.line(9), LineIndex(5));
    EXPECT_EQ(taken[999].bookmarks.line(8), std::nullopt);
    EXPECT_TRUE(file.take().empty()) << "each is opened once";
}

TEST_F(Session, AnyBytesAreASession) {
    const auto read =
        ReadSessionText("\r\n\t\r\nC:\\A\r\n\tC:\\B\r\n1 -5 x 99999999999 -2 \xFF\tC:\\C D\r\n0 1 2\tC:\\CUT");
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].path, "C:\\B");
    EXPECT_EQ(SessionText({&read[1], 1}), "1 0 0 2147483647 -1 0 -1 -1 -1 -1 -1 -1 -1\tC:\\C D\r\n");
}

// ---- files open at exit ------------------------------------------------------------------------------------------

using Opened = std::vector<std::pair<std::string, int>>;

Opened Restore(StartupFiles& files, bool restore) {
    Opened opened;
    files.RestoreStartupFiles(restore, [&](const std::string& path, int line) { opened.emplace_back(path, line); });
    return opened;
}

TEST_F(Session, OneFileThatIsGoneIsNamedAloneAndMoreAreCounted) {
    const std::string paths[] = {"C:\\SUB\\A.C", "C:\\B.C"};
    EXPECT_EQ(TextOfMissing(std::span(paths).first(1)), FillText(TextId::CannotOpenFile, {"A.C"}));
    EXPECT_EQ(TextOfMissing(paths), "2 files of the last session can not be found:\n\nC:\\SUB\\A.C\nC:\\B.C\n");
}

TEST_F(Session, OfFourOpenFilesThreeAreReopenedTheLastSlotFirst) {
    StartupFiles closing(store_);
    closing.RecordStartupFile("C:\\A", 1);
    closing.RecordStartupFile("C:\\My B", 20);
    closing.RecordStartupFile("C:\\C", 3);
    closing.RecordStartupFile("C:\\D", 4);
    EXPECT_EQ(history("StartupFile:0"), "C:\\D 4");
    StartupFiles starting(store_);
    EXPECT_EQ(Restore(starting, true), (Opened{{"C:\\C", 3}, {"C:\\My B", 20}, {"C:\\D", 4}}));
    EXPECT_EQ(history("StartupFile:1"), "");
    EXPECT_EQ(Restore(starting, true), Opened{}) << "each is opened once";
}

TEST_F(Session, TheFilesUsedLastComeBackAndTheLastOneIsActive) {
    for (std::size_t documents = 0; documents < 12; ++documents) {
        StartupFiles closing(store_);
        closing.keep();
        const std::vector<std::size_t> order = ClosingOrder(documents);
        EXPECT_EQ(std::set<std::size_t>(order.begin(), order.end()).size(), documents) << "each is closed once";
        for (const std::size_t rank : order)
            closing.RecordStartupFile(std::to_string(rank), 1);
        Opened expected = {{"2", 1}, {"1", 1}, {"0", 1}};
        expected.erase(expected.begin(), expected.end() - static_cast<long>(std::min<std::size_t>(documents, 3)));
        StartupFiles starting(store_);
        EXPECT_EQ(Restore(starting, true), expected) << documents;
    }
}

TEST_F(Session, AnEndThatIsCalledOffLeavesNoFilesBehind) {
    setHistory("StartupFile:1", "C:\\A 5");
    StartupFiles files(store_);
    files.keep();
    for (const char* path : {"C:\\B", "C:\\C", "C:\\D", "C:\\E"})
        files.RecordStartupFile(path, 1);
    files.takeBack();
    EXPECT_EQ(history("StartupFile:0") + history("StartupFile:1") + history("StartupFile:2"), "C:\\A 5");
    files.RecordStartupFile("C:\\F", 1);
    EXPECT_EQ(history("StartupFile:0"), "C:\\F 1") << "the ring begins where it began";
    files.takeBack();
    EXPECT_EQ(history("StartupFile:0"), "C:\\F 1") << "it is only called off once";
}

TEST_F(Session, AFileClosedTwiceKeepsItsSlotAndTheSlotMovesOn) {
    StartupFiles closing(store_);
    closing.RecordStartupFile("C:\\A", 1);
    closing.RecordStartupFile("c:\\a", 2);
    closing.RecordStartupFile("C:\\B", 3);
    EXPECT_EQ(history("StartupFile:0"), "c:\\a 2");
    EXPECT_EQ(history("StartupFile:1"), "none");
    EXPECT_EQ(history("StartupFile:2"), "C:\\B 3");
}

TEST_F(Session, AnythingInTheSettingsIsAFileAndALine) {
    setHistory("StartupFile:0", "C:\\NoLine");
    setHistory("StartupFile:1", "C:\\My file");
    setHistory("StartupFile:2", "\"  9\"");
    StartupFiles files(store_);
    EXPECT_EQ(Restore(files, true), (Opened{{" ", 9}, {"C:\\My", 0}, {"C:\\NoLine", 0}}));
}

TEST_F(Session, WithoutRestoringTheOpenFilesAreKept) {
    setHistory("StartupFile:1", "C:\\A 5");
    StartupFiles files(store_);
    EXPECT_EQ(Restore(files, false), Opened{});
    EXPECT_EQ(history("StartupFile:1"), "C:\\A 5");
}

// ---- the frame's place -------------------------------------------------------------------------------------------

constexpr ScreenRect kCurrent{100, 50, 640, 480};

TEST_F(Session, TheFrameComesBackWhereItStoodWhenNormal) {
    FramePlacement placement = LoadFramePlacement(store_, true, FrameState::Maximised, kCurrent);
    EXPECT_EQ(placement, (FramePlacement{kCurrent, FrameState::Normal})) << "nothing is known yet";
    placement.noteMove({-200, 7, 640, 480});
    placement.noteSize(FrameState::Maximised, {0, 0, 1920, 1080});
    placement.noteMove({1, 1, 1, 1});
    SaveFramePlacement(store_, placement);
    const FramePlacement expected{{-200, 7, 640, 480}, FrameState::Maximised};
    EXPECT_EQ(LoadFramePlacement(store_, true, FrameState::Normal, kCurrent), expected);
    EXPECT_EQ(LoadFramePlacement(store_, false, FrameState::Minimised, kCurrent).state, FrameState::Minimised);
}

TEST_F(Session, AnUnusablePlaceIsTheDefaultOne) {
    for (const char* damaged : {"x", "y", "cx", "cy"}) {
        SaveFramePlacement(store_, {{10, 20, 300, 200}, FrameState::Maximised});
        store_.WriteInt("Frame Size", damaged, 0);
        EXPECT_EQ(LoadFramePlacement(store_, true, FrameState::Normal, kCurrent),
                  (FramePlacement{kCurrent, FrameState::Normal}))
            << damaged;
    }
    SaveFramePlacement(store_, {{10, 20, 300, -200}, FrameState::Maximised});
    EXPECT_EQ(LoadFramePlacement(store_, true, FrameState::Normal, kCurrent).normal, kCurrent);
    SaveFramePlacement(store_, {{10, 20, 300, 200}, FrameState{9}});
    EXPECT_EQ(LoadFramePlacement(store_, true, FrameState::Maximised, kCurrent).state, FrameState::Normal);
}

TEST(FrameOnScreen, ItsTitleBarCanBeTakenHoldOf) {
    constexpr ScreenRect kLeft{-1280, 0, 1280, 1024};
    constexpr ScreenRect kMain{0, 0, 1920, 1040};
    const ScreenRect both[] = {kMain, kLeft};
    const ScreenRect one[] = {kMain};
    struct Case {
        ScreenRect rectangle;
        ScreenRect onBoth;
        ScreenRect onMain;
    };
    const Case cases[] = {
        {{10, 10, 640, 480}, {10, 10, 640, 480}, {10, 10, 640, 480}},
        {{-600, 10, 640, 480}, {-600, 10, 640, 480}, {0, 10, 640, 480}},
        {{-700, 10, 640, 480}, {-700, 10, 640, 480}, {0, 10, 640, 480}},
        {{1880, 10, 640, 480}, {1280, 10, 640, 480}, {1280, 10, 640, 480}},
        {{10, -30, 640, 480}, {10, 0, 640, 480}, {10, 0, 640, 480}},
        {{10, 1035, 640, 480}, {10, 560, 640, 480}, {10, 560, 640, 480}},
        {{-5000, -5000, 9000, 9000}, {0, 0, 1920, 1040}, {0, 0, 1920, 1040}},
        {{INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX}, {0, 0, 1920, 1040}, {0, 0, 1920, 1040}},
        {{INT32_MIN, 5, 100, 100}, {-1280, 5, 100, 100}, {0, 5, 100, 100}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(KeptOnScreen(c.rectangle, both), c.onBoth) << c.rectangle.x << "," << c.rectangle.y;
        EXPECT_EQ(KeptOnScreen(c.rectangle, one), c.onMain) << c.rectangle.x << "," << c.rectangle.y;
    }
    EXPECT_EQ(KeptOnScreen(kCurrent, {}), kCurrent);
}

}  // namespace
}  // namespace vexa

#include "shell/auto_backup.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/file.h"
#include "document/view/edit_view.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

std::int64_t g_now = 0;

class PumpingNotices : public test::RecordingNotices {
  public:
    bool pumpMessages() override {
        if (onPump) onPump();
        return RecordingNotices::pumpMessages();
    }
    std::function<void()> onPump;
};

class AutoBackupTest : public testing::Test, private BackupFrame {
  protected:
    AutoBackupTest() {
        g_now = 1000;
        disk_.makeDirectory("vbackup");
        for (TextDocument* document : {&one_, &two_}) {
            document->newEmpty();
            document->lines().put(document->makeLine("text"), 0);
        }
        one_.setName(disk_.path("one.c"));
        two_.setName(disk_.path("two.c"));
    }
    ~AutoBackupTest() override { SetFileFault(nullptr); }

    void modify(TextDocument& document) { EditView(document, options_, notices_).key(KeyEvent{.character = 'x'}); }
    void checkAt(std::int64_t now) {
        g_now = now;
        backup_.CheckBackups();
    }
    bool takeBackup(const std::string& name) {
        const std::string path = "vbackup\\" + name;
        const bool there = disk_.has(path);
        platform::RemoveFile(disk_.path(path));
        return there;
    }

    test::TestDisk disk_;
    PumpingNotices notices_;
    EditorOptions options_;
    TextDocument one_{options_, notices_};
    TextDocument two_{options_, notices_};
    std::vector<TextDocument*> open_ = {&one_, &two_};
    bool busy_ = false;
    AutoBackup backup_{*this, options_, disk_.path("vbackup"), notices_, [] { return g_now; }};

  private:
    bool isBusy() const override { return busy_; }
    std::vector<TextDocument*> openDocuments() const override { return open_; }
};

TEST_F(AutoBackupTest, AModifiedDocumentIsCopiedAfterEachInterval) {
    checkAt(1000);
    checkAt(2000);
    modify(one_);
    checkAt(2240);
    EXPECT_FALSE(takeBackup("one.c"));
    EXPECT_TRUE(notices_.statuses.empty());
    checkAt(2241);
    EXPECT_EQ(notices_.statuses.back(), (test::StatusNotice{"Background file backup started.", false, false}));
    EXPECT_EQ(notices_.pumpCount, 1);
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "xtext\r\n");
    EXPECT_TRUE(takeBackup("one.c"));
    EXPECT_FALSE(takeBackup("two.c")) << "it has not changed";
    checkAt(2481);
    EXPECT_FALSE(takeBackup("one.c"));
    checkAt(2482);
    EXPECT_TRUE(takeBackup("one.c")) << "while it stays modified";
    EXPECT_TRUE(one_.isModified());
    EXPECT_FALSE(disk_.has("one.c")) << "the document's own file is not touched";
}

TEST_F(AutoBackupTest, TheIntervalRestartsWithTheNextChange) {
    modify(one_);
    checkAt(1000);
    one_.clearModified();
    checkAt(1200);
    modify(one_);
    checkAt(1300);
    EXPECT_FALSE(takeBackup("one.c"));
    checkAt(1441);
    EXPECT_TRUE(takeBackup("one.c"));
}

TEST_F(AutoBackupTest, AnIntervalBelowZeroIsTakenForItsMagnitude) {
    options_.BackupInterval = -4;
    modify(one_);
    checkAt(1000);
    checkAt(1240);
    EXPECT_FALSE(takeBackup("one.c"));
    checkAt(1241);
    EXPECT_TRUE(takeBackup("one.c"));
}

TEST_F(AutoBackupTest, NothingIsCopiedWhenSwitchedOffOrBusy) {
    modify(one_);
    checkAt(1000);
    options_.AutoBackup = false;
    checkAt(9000);
    options_.AutoBackup = true;
    busy_ = true;
    checkAt(9000);
    EXPECT_FALSE(takeBackup("one.c"));
    busy_ = false;
    checkAt(9000);
    EXPECT_TRUE(takeBackup("one.c"));
}

TEST_F(AutoBackupTest, ACopyOfBytesEndsInOneCtrlZ) {
    options_.FileWrite = true;
    modify(one_);
    EXPECT_TRUE(backup_.BackupDocument(one_));
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "xtext\n\x1A");
    EXPECT_FALSE(backup_.BackupDocument(two_)) << "not modified";
}

TEST_F(AutoBackupTest, EveryNameLandsInTheBackupDirectory) {
    for (const char* name : {"C:\\elsewhere\\one.c", "c:one.c", "dir/one.c"}) {
        one_.setName(name);
        modify(one_);
        EXPECT_TRUE(backup_.BackupDocument(one_)) << name;
        EXPECT_TRUE(takeBackup("one.c")) << name;
    }
    two_.setName(disk_.path("sub\\one.c"));
    modify(two_);
    backup_.BackupDocument(one_);
    EXPECT_TRUE(backup_.BackupDocument(two_));
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "xtext\r\n") << "two of one name share a copy";
    const auto others = platform::FindFiles(disk_.path("vbackup\\one~*.c"));
    ASSERT_EQ(others.size(), 1u) << "what the other document had there is not lost";
    EXPECT_EQ(disk_.get("vbackup\\" + others[0]), "xxxtext\r\n");
    EXPECT_TRUE(backup_.BackupDocument(two_));
    EXPECT_EQ(disk_.count("vbackup"), 2u);
}

TEST_F(AutoBackupTest, AFailedCopyKeepsTheOlderOneAndIsTriedAgainLater) {
    modify(one_);
    checkAt(1000);
    disk_.put("vbackup\\one.c", "older");
    SetFileFault([](FileStep step) { return step == FileStep::Write; });
    checkAt(1300);
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "older");
    SetFileFault(nullptr);
    checkAt(1500);
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "older") << "after another interval";
    checkAt(1541);
    EXPECT_EQ(disk_.get("vbackup\\one.c"), "xtext\r\n");
    EXPECT_EQ(disk_.count("vbackup"), 1u);
}

TEST_F(AutoBackupTest, DocumentsMayCloseAndChecksComeWhileMessagesRun) {
    modify(one_);
    modify(two_);
    checkAt(1000);
    notices_.onPump = [this] {
        open_ = {&two_};
        backup_.CheckBackups();
    };
    checkAt(1300);
    EXPECT_FALSE(takeBackup("one.c")) << "closed before its copy was made";
    EXPECT_TRUE(takeBackup("two.c"));
    EXPECT_EQ(notices_.pumpCount, 2);
}

TEST_F(AutoBackupTest, NothingIsWrittenOnceTheProgramEnds) {
    modify(one_);
    modify(two_);
    checkAt(1000);
    notices_.quitAtPump = 1;
    checkAt(1300);
    EXPECT_FALSE(takeBackup("one.c"));
    EXPECT_EQ(notices_.pumpCount, 1);
}

TEST_F(AutoBackupTest, AClockSetBackBeginsTheIntervalAnew) {
    modify(one_);
    checkAt(1'000'000);
    checkAt(5000);
    checkAt(5241);
    EXPECT_TRUE(takeBackup("one.c"));
}

}  // namespace
}  // namespace vexa

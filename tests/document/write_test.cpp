// Saves that fail or end at any step. What a save writes otherwise is told by the cases of tests/shell/documents.
#include <gtest/gtest.h>

#include <string>

#include "base/file.h"
#include "document/document_session.h"
#include "document/text/text_document.h"
#include "document/text/text_writer.h"
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>

#include "support/full_disk.h"
#endif
#include "support/test_disk.h"

namespace vexa {
namespace {

struct FaultPlan {
    FileStep step;
    int countdown;  // this many of these steps pass before failures begin
    int failures;   // how many fail
    bool struck;
};
FaultPlan plan;

bool Strike(FileStep step) {
    if (step != plan.step) return false;
    if (plan.countdown-- > 0) return false;
    if (plan.failures-- <= 0) return false;
    plan.struck = true;
    return true;
}

class Write : public testing::Test, protected test::DocumentSession {
  protected:
    ~Write() override { SetFileFault(nullptr); }

    void load(std::string_view bytes) {
        disk_.put("A.TXT", bytes);
        document_.setName(disk_.path("A.TXT"));
        ASSERT_TRUE(document_.load());
    }
    // Writes while so many of these steps fail, after others have passed.
    bool writeFailing(FileStep step, int passing, int failing) {
        plan = {step, passing, failing, false};
        SetFileFault(Strike);
        const bool isWritten = document_.write();
        SetFileFault(nullptr);
        return isWritten;
    }
    std::string copyName() const { return "A.TXT.vx0"; }

    test::TestDisk disk_;
};

TEST_F(Write, EveryByteSurvivesLoadingAndWriting) {
    std::string all;
    for (int c = 0; c < 256; ++c) {
        if (c != '\n') all += static_cast<char>(c);
    }
    load(all + "\r\n" + all + "\r\n");
    ASSERT_TRUE(document_.write());
    EXPECT_EQ(disk_.get("A.TXT"), all + "\r\n" + all + "\r\n");
}

// ---- a disk that fails ---------------------------------------------------------------------------------------------

std::string LargeText(char c) {
    std::string text;
    while (text.size() < 700'000)
        text += std::string(60, c) + "\r\n";
    return text;
}

TEST_F(Write, AFailureAtAnyStepKeepsTheOldFileAndTheChanges) {
    const std::string old = LargeText('o');
    const FileStep steps[] = {FileStep::Open, FileStep::Read,  FileStep::Write,
                              FileStep::End,  FileStep::Flush, FileStep::Close};
    int struck = 0;
    for (const FileStep step : steps) {
        for (int countdown = 0; countdown < 12; ++countdown) {
            load(old);
            type("x");
            const bool written = writeFailing(step, countdown, 1);
            SCOPED_TRACE("step " + std::to_string(static_cast<int>(step)) + " after " + std::to_string(countdown));
            EXPECT_FALSE(written && countdown == 0) << "the copy was not made, so the file may not be touched";
            EXPECT_EQ(disk_.count(), 1u) << "something of the copy is left";
            EXPECT_EQ(disk_.get("A.TXT"), written ? "x" + old : old);
            EXPECT_EQ(document_.isModified(), !written);
            EXPECT_EQ(document_.history().isEmpty(), written);
            if (plan.struck) ++struck;
        }
    }
    EXPECT_GT(struck, 12) << "the steps of a save were not reached";
}

#ifndef _WIN32
int g_stepsBeforeEnd = 0;

TEST_F(Write, AProgramThatEndsAtAnyStepLeavesTheOldTextWhole) {
    const std::string old = LargeText('o');
    for (int steps = 0, ended = 0; ended == 0; ++steps) {
        platform::RemoveFile(disk_.path(copyName()));
        load(old);
        type("x");
        const pid_t child = fork();
        if (child == 0) {
            g_stepsBeforeEnd = steps;
            SetFileFault([](FileStep) {
                if (g_stepsBeforeEnd-- == 0) _exit(0);
                return false;
            });
            _exit(document_.write() ? 1 : 2);
        }
        ASSERT_EQ(waitpid(child, &ended, 0), child);
        SCOPED_TRACE(steps);
        const std::vector<std::string> copies = LeftSafetyCopies(disk_.path("A.TXT"));
        ASSERT_LE(copies.size(), 1u);
        if (!copies.empty()) {
            EXPECT_EQ(disk_.get(copyName()), old);
        } else {
            const std::string now = disk_.get("A.TXT");
            EXPECT_TRUE(now == old || now == "x" + old);
        }
    }
    EXPECT_EQ(disk_.get("A.TXT"), "x" + old);
    EXPECT_EQ(disk_.count(), 1u) << "what an earlier end left of a copy in the making";
}

TEST_F(Write, ACopyThatCannotLieBesideTheFileLiesAmongTheBackups) {
    disk_.makeDirectory("vbackup");
    const std::string names[] = {std::string(254, 'n'), "A.TXT"};  // the first leaves no room for ".vx0"
    for (char digit = '0'; digit <= '9'; ++digit)
        disk_.put(std::string("A.TXT.vx") + digit, "kept");
    for (const std::string& name : names) {
        disk_.put(name, LargeText('o'));
        document_.setName(disk_.path(name));
        ASSERT_TRUE(document_.load());
        type("x");
        EXPECT_FALSE(writeFailing(FileStep::Write, 4, 1000));
        ASSERT_FALSE(LeftSafetyCopies(disk_.path(name)).empty());
        EXPECT_EQ(disk_.get(LeftSafetyCopies(disk_.path(name))[0].substr(3)), LargeText('o'));
        EXPECT_TRUE(document_.write());
    }
    EXPECT_EQ(disk_.count("vbackup"), 2u) << "the copies of the two failures";
}

TEST_F(Write, ADiskWithoutRoomKeepsTheOldFileWherePlaceRunsOut) {
    const std::string old = LargeText('o');
    for (const rlim_t room : {rlim_t{1000}, rlim_t{300'000}, rlim_t{old.size()}, rlim_t{old.size() + 100'000}}) {
        load(old);
        document_.current().append(std::string(60'000, 'x'));
        document_.countChange(1);
        bool written = false;
        {
            const test::FullDisk full(room);
            written = document_.write();
        }
        EXPECT_EQ(written, room > old.size() + 60'000) << room;
        EXPECT_EQ(disk_.get("A.TXT").size(), written ? old.size() + 60'000 : old.size()) << room;
        EXPECT_FALSE(disk_.has(copyName())) << room;
        EXPECT_EQ(document_.isModified(), !written) << room;
    }
}
#endif

}  // namespace
}  // namespace vexa

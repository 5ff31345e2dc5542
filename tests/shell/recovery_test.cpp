#include <gtest/gtest.h>

#include "base/file.h"
#include "shell/open_texts.h"
#include "shell/unsaved/recovery_keeper.h"
#include "shell/unsaved/recovery_offer.h"

namespace vexa {
namespace {

std::uint32_t g_ticks = 0;
FileStep g_refused = FileStep::Open;

// Recovers into new documents, as the frame does into new windows.
struct Host : RecoveryHost {
    Host(test::OpenTexts& shown, RecoveryKeeper& kept) : texts(shown), keeper(kept) {}
    void recover(const RecoveredText& recovered, const std::string& file) override {
        const std::string path = recovered.path();
        TextDocument& document = texts.add(path.find(':') == std::string::npos ? std::nullopt : std::optional(path));
        GiveText(document, recovered);
        keeper.adopt(document, file);
    }
    void openFile(const std::string& path) override { opened.push_back(path); }

    test::OpenTexts& texts;
    RecoveryKeeper& keeper;
    std::vector<std::string> opened;
};

class RecoveryTest : public testing::Test {
  protected:
    RecoveryTest() {
        g_ticks = 5000;
        texts_.disk.makeDirectory("vbackup");
    }
    ~RecoveryTest() override { SetFileFault(nullptr); }

    void pass(std::uint32_t milliseconds) {
        g_ticks += milliseconds;
        while (keeper_->work() != RecoveryKeeper::Work::None) {
        }
    }
    std::size_t kept() const { return platform::FindFiles(directory_ + "\\*.vxr").size(); }
    // The run ends without any of its own doing; another one begins.
    void crash() {
        const std::string before = directory_ + "\\";
        std::vector<std::pair<std::string, std::string>> files;
        for (const std::string& name : platform::FindFiles(before + "*"))
            files.emplace_back(name, texts_.disk.get("vbackup\\" + name));
        keeper_.reset();
        for (const auto& [name, bytes] : files)
            if (!platform::PathExists(before + name)) texts_.disk.put("vbackup\\" + name, bytes);
        texts_.open.clear();
        keeper_ = std::make_unique<RecoveryKeeper>(texts_, directory_, texts_.notices, [] { return g_ticks; });
    }
    std::vector<std::string> offerAnd(std::optional<std::size_t> button) {
        Host host(texts_, *keeper_);
        RecoveryOffer offer(keeper_->takeLeft(), host, texts_.notices);
        const std::vector<std::string> rows = offer.rows();
        for (std::size_t i = 0; button && i < rows.size(); ++i)
            offer.act(*button, 0);
        EXPECT_EQ(offer.rows().empty(), button || rows.empty());
        opened_ = host.opened;
        return rows;
    }

    test::OpenTexts texts_;
    const std::string directory_ = texts_.disk.path("vbackup");
    std::unique_ptr<RecoveryKeeper> keeper_ =
        std::make_unique<RecoveryKeeper>(texts_, directory_, texts_.notices, [] { return g_ticks; });
    std::vector<std::string> opened_;
};

TEST_F(RecoveryTest, IsWrittenAfterAPauseAndWhileTypingInTime) {
    texts_.disk.put("a.txt", "old\r\n");
    TextDocument& document = texts_.add(texts_.disk.path("a.txt"));
    pass(60'000);
    EXPECT_EQ(texts_.disk.count("vbackup"), 0u) << "nothing is kept of what has not changed";
    texts_.type(document, "1");
    pass(0);
    pass(RecoveryKeeper::kPause - 1);
    EXPECT_EQ(kept(), 0u);
    pass(1);
    EXPECT_EQ(kept(), 1u);
    std::uint32_t age = 0;
    for (int key = 0; key < 100; ++key) {
        const std::string before = texts_.disk.get("vbackup\\unsaved-1-1.vxr");
        texts_.type(document, "x");
        pass(200);
        age = texts_.disk.get("vbackup\\unsaved-1-1.vxr") == before ? age + 200 : 0;
        ASSERT_LE(age, RecoveryKeeper::kLongestWait) << "at key " << key;
    }
    EXPECT_EQ(texts_.disk.get("a.txt"), "old\r\n");
}

TEST_F(RecoveryTest, IsRemovedWhenNothingIsUnsaved) {
    texts_.disk.put("a.txt", "old\r\n");
    struct Way {
        const char* name;
        void (*end)(TextDocument&, RecoveryKeeper&);
    };
    static constexpr Way kWays[] = {
        {"saved", [](TextDocument& document, RecoveryKeeper&) { EXPECT_TRUE(document.write()); }},
        {"undone",
         [](TextDocument& document, RecoveryKeeper&) {
             while (document.history().undo()) {
             }
         }},
        {"closed", [](TextDocument& document, RecoveryKeeper& keeper) { keeper.forget(document); }},
    };
    for (const Way& way : kWays) {
        TextDocument& document = texts_.add(texts_.disk.path("a.txt"));
        texts_.type(document, "new");
        pass(0);
        pass(RecoveryKeeper::kPause);
        EXPECT_EQ(kept(), 1u) << way.name;
        way.end(document, *keeper_);
        if (way.end == kWays[2].end) texts_.open.clear();
        pass(0);
        EXPECT_EQ(kept(), 0u) << way.name;
        texts_.open.clear();
    }
    keeper_.reset();
    EXPECT_EQ(texts_.disk.count("vbackup"), 0u) << "nothing speaks of a run that came to its end";
}

TEST_F(RecoveryTest, EveryDocumentComesBackWithItsCaretAndItsUndo) {
    texts_.disk.put("a.txt", "1\r\n2\r\n3\r\n4\r\n");
    texts_.type(texts_.add(texts_.disk.path("a.txt")), "one ");
    texts_.type(texts_.add(), "never saved");
    texts_.type(texts_.add(texts_.disk.path("new.c")), "new");
    texts_.add(texts_.disk.path("a.txt"));
    pass(0);
    pass(RecoveryKeeper::kPause);
    crash();
    EXPECT_EQ(offerAnd(std::nullopt).size(), 3u);
    crash();
    EXPECT_EQ(offerAnd(0),
              (std::vector<std::string>{texts_.disk.path("a.txt"), "(new document)", texts_.disk.path("new.c")}))
        << "what was put off is offered again";
    ASSERT_EQ(texts_.open.size(), 3u);
    EXPECT_EQ(texts_.textOf(*texts_.open[0]), "one 1|2|3|4|");
    EXPECT_EQ(texts_.textOf(*texts_.open[1]), "never saved|");
    EXPECT_EQ(texts_.textOf(*texts_.open[2]), "new|");
    EXPECT_FALSE(texts_.open[2]->isNamed()) << "it never had a file";
    EXPECT_TRUE(texts_.open[0]->isModified());
    EXPECT_FALSE(texts_.open[0]->isLineChanged(LineIndex(1)));
    EXPECT_TRUE(texts_.open[0]->write());
    pass(0);
    EXPECT_EQ(kept(), 2u);
    EXPECT_TRUE(texts_.open[1]->history().undo());
    EXPECT_FALSE(texts_.open[1]->isModified());
    pass(0);
    EXPECT_EQ(kept(), 1u);
    crash();
    EXPECT_EQ(offerAnd(1), std::vector<std::string>{texts_.disk.path("new.c")});
    EXPECT_EQ(kept(), 0u);
    crash();
    EXPECT_TRUE(offerAnd(0).empty());
}

TEST_F(RecoveryTest, WhatWasSavedAtTheLastMomentIsNotAskedAbout) {
    for (const bool bytes : {false, true}) {
        texts_.options.FileWrite = bytes;
        texts_.disk.put("a.txt", "old");
        TextDocument& document = texts_.add(texts_.disk.path("a.txt"));
        texts_.type(document, "new ");
        pass(0);
        pass(RecoveryKeeper::kPause);
        EXPECT_TRUE(document.write());
        EXPECT_EQ(kept(), 1u);
        crash();
        EXPECT_TRUE(offerAnd(0).empty()) << bytes;
        EXPECT_EQ(kept(), 0u);
    }
}

TEST_F(RecoveryTest, AFileThatHasChangedSinceIsNotWrittenOver) {
    texts_.disk.put("a.txt", "old\r\n");
    texts_.type(texts_.add(texts_.disk.path("a.txt")), "my ");
    pass(0);
    pass(RecoveryKeeper::kPause);
    crash();
    texts_.disk.put("a.txt", "theirs\r\n");
    EXPECT_EQ(offerAnd(0), std::vector{texts_.disk.path("a.txt") + " (its file has been changed since)"});
    EXPECT_EQ(texts_.textOf(*texts_.open[0]), "my old|");
    EXPECT_EQ(texts_.open[0]->tryWrite(false).result, WriteResult::FileChanged);
}

TEST_F(RecoveryTest, ADamagedFileIsToldAndStays) {
    texts_.type(texts_.add(), "text");
    pass(0);
    pass(RecoveryKeeper::kPause);
    const std::string whole = texts_.disk.get("vbackup\\unsaved-1-1.vxr");
    for (std::size_t i = 0; i <= whole.size(); ++i) {
        std::string damaged = whole.substr(0, i);
        EXPECT_FALSE(ReadRecoveryText(damaged) && i < whole.size()) << i;
        if (i == whole.size()) continue;
        (damaged = whole)[i] ^= 4;
        EXPECT_FALSE(ReadRecoveryText(damaged)) << i;
    }
    texts_.disk.put("vbackup\\unsaved-1-1.vxr", whole + "x");
    crash();
    const std::string path = directory_ + "\\unsaved-2-1.vxr";  // of the run that has taken it
    EXPECT_EQ(offerAnd(0), std::vector{path + " (damaged, opened as it is)"});
    EXPECT_EQ(opened_, std::vector{path});
    EXPECT_EQ(kept(), 1u);
}

TEST_F(RecoveryTest, RunningEditorsDoNotTakeEachOthersFiles) {
    texts_.type(texts_.add(), "text");
    pass(0);
    pass(RecoveryKeeper::kPause);
    struct : BackupFrame {
        bool isBusy() const override { return false; }
        std::vector<TextDocument*> openDocuments() const override { return open; }
        std::vector<TextDocument*> open;
    } others;
    RecoveryKeeper other(others, directory_, texts_.notices, [] { return g_ticks; });
    EXPECT_TRUE(other.takeLeft().empty());
    texts_.type(texts_.add(), "other");
    others.open.push_back(texts_.open.back());
    texts_.open.pop_back();
    other.writeAll();
    EXPECT_EQ(kept(), 2u);
    EXPECT_TRUE(keeper_->takeLeft().empty());
    crash();
    EXPECT_EQ(offerAnd(1).size(), 1u);
    EXPECT_EQ(kept(), 1u) << "the other editor's file stays";
}

TEST_F(RecoveryTest, AFailureKeepsTheOlderFileAndIsToldOnce) {
    TextDocument& document = texts_.add();
    texts_.type(document, "1");
    keeper_->writeAll();
    const std::string older = texts_.disk.get("vbackup\\unsaved-1-1.vxr");
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Flush, FileStep::Close}) {
        g_refused = step;
        SetFileFault([](FileStep tried) { return tried == g_refused; });
        texts_.type(document, "2");
        keeper_->writeAll();
        EXPECT_EQ(texts_.disk.get("vbackup\\unsaved-1-1.vxr"), older) << static_cast<int>(step);
        EXPECT_EQ(texts_.disk.count("vbackup"), 2u);
        SetFileFault(nullptr);
    }
    EXPECT_EQ(texts_.notices.statuses.size(), 1u);
    pass(RecoveryKeeper::kPause);
    EXPECT_NE(texts_.disk.get("vbackup\\unsaved-1-1.vxr"), older) << "and is tried again";
#ifndef _WIN32  // there the mark of a running editor holds the directory
    texts_.disk.remove("vbackup");
    texts_.type(texts_.add(), "3");
    keeper_->writeAll();
#endif
}

// The longest that a key can have to wait is a part of the work; a part copies or writes no more than this.
TEST_F(RecoveryTest, ALargeDocumentIsWrittenInSmallPartsAlsoWhileItChanges) {
    TextDocument& document = texts_.add();
    for (std::int32_t i = 0; i < 60'000; ++i)
        document.lines().put(TextDocument::makeLine("fifty characters of a line, the same ones every time"), i);
    texts_.type(document, "1");
    pass(0);
    g_ticks += RecoveryKeeper::kPause;
    int parts = 0;
    while (keeper_->work() == RecoveryKeeper::Work::More)
        if (++parts % 20 == 0 && parts < 100) texts_.type(document, "2");
    EXPECT_GT(parts, 90) << "about 3 MB, copied and written";
    pass(RecoveryKeeper::kPause);
    crash();
    offerAnd(0);
    EXPECT_EQ(texts_.textOf(*texts_.open[0]), texts_.textOf(document));
}

}  // namespace
}  // namespace vexa

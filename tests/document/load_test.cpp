#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/file.h"
#include "base/strings.h"
#include "document/document_session.h"
#include "document/text/file_identity.h"
#include "document/text/line_end_search.h"
#include "document/text/text_document.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using test::BoxNotice;

class Load : public testing::Test, protected test::DocumentSession {
  protected:
    bool load(std::string_view bytes) {
        disk_.put("A.TXT", bytes);
        document_.setName(disk_.path("A.TXT"));
        return document_.load();
    }

    using Lines = std::vector<std::string>;
    test::TestDisk disk_;
};

TEST(LineEndSearch, FindsWhatALookAtEachByteFinds) {
    std::mt19937 random(5);
    for (unsigned i = 0; i < 4000; ++i) {
        const auto sought = i % 2 ? LineEndSearch::Sought::Lf : LineEndSearch::Sought::LfAndCr;
        std::string text(random() % 300, 'x');
        for (auto ends = random() % 3; ends > 0 && !text.empty(); --ends)
            text[random() % text.size()] = "\n\r\v\x8A"[random() % 4];
        const std::size_t first = std::min(text.find_first_of(i % 2 ? "\n" : "\n\r"), text.size());
        ASSERT_EQ(LineEndSearch(sought, i % 3 ? Instructions::Sse2 : Instructions::Plain).find(text), first) << i;
    }
}

TEST_F(Load, LineEndsOfTextAreLfAndCrLf) {
    ASSERT_TRUE(load("one\r\ntwo\nthree"));
    EXPECT_EQ(lines(), (Lines{"one", "two", "three"}));
    ASSERT_TRUE(load("one\r\n\r\n"));
    EXPECT_EQ(lines(), (Lines{"one", ""}));
    ASSERT_TRUE(load(""));
    EXPECT_EQ(lines(), (Lines{""}));
    EXPECT_TRUE(document_.lines().isVacant(0));
}

TEST_F(Load, EveryOtherByteIsKept) {
    const std::string odd(
        "a\0b\rc\x1A"
        "d\xFF\r",
        9);
    ASSERT_TRUE(load(odd + "\r\n" + odd));
    EXPECT_EQ(lines(), (Lines{odd, odd}));
}

TEST_F(Load, AsBytesOnlyLfEndsALine) {
    options_.FileWrite = true;
    ASSERT_TRUE(load("one\r\ntwo\n\x1A"));
    EXPECT_EQ(lines(), (Lines{"one\r", "two", "\x1A"}));
}

TEST_F(Load, ReadingAsUnixChangesNothing) {
    options_.FileRead = true;
    ASSERT_TRUE(load("one\r\ntwo"));
    EXPECT_EQ(lines(), (Lines{"one", "two"}));
}

TEST_F(Load, ALongLineWithoutABlankIsSplitFiveCharactersBeforeTheReadsEnd) {
    ASSERT_TRUE(load(std::string(294, 'a') + std::string(106, 'b') + "\nnext"));
    EXPECT_EQ(lines(), (Lines{std::string(294, 'a'), std::string(106, 'b'), "next"}));
    EXPECT_TRUE(document_.areLinesWrapped());
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0], (BoxNotice{std::string(LoadText(TextId::LinesWrapped)), "Vexa 95", BoxButtons::Ok}));
}

TEST_F(Load, ALongLineIsSplitBehindItsLastBlank) {
    const std::string head = std::string(100, 'a') + " ";
    ASSERT_TRUE(load(head + std::string(299, 'b')));
    EXPECT_EQ(text(0), head);
    EXPECT_EQ(text(1), std::string(294, 'b'));
    EXPECT_EQ(text(2), std::string(5, 'b'));
}

TEST_F(Load, ABlankThatLeavesNoMoreThanOneCharacterIsNoSplitPoint) {
    ASSERT_TRUE(load(std::string(297, 'a') + " b" + std::string(101, 'c')));
    EXPECT_EQ(text(0), std::string(294, 'a'));
    ASSERT_TRUE(load(std::string(296, 'a') + " bc" + std::string(101, 'c')));
    EXPECT_EQ(text(0), std::string(296, 'a') + " ");
}

TEST_F(Load, WhatIsTooLong) {
    ASSERT_TRUE(load(std::string(297, 'a') + "\nnext"));
    EXPECT_FALSE(document_.areLinesWrapped());
    // The line end is read with the 298 characters, so the rest runs on into the next line.
    for (const char* lineEnd : {"\n", "\r\n"}) {
        ASSERT_TRUE(load(std::string(293, 'a') + "12345" + lineEnd + "next\nlast"));
        EXPECT_TRUE(document_.areLinesWrapped());
        EXPECT_EQ(lines(), (Lines{std::string(293, 'a'), "12345next", "last"}));
    }
    ASSERT_TRUE(load(std::string(293, 'a') + "12345"));
    EXPECT_FALSE(document_.areLinesWrapped()) << "298 characters at the end of the file are no line too long";
    // With 299 the line end is not read any more and stays.
    ASSERT_TRUE(load(std::string(294, 'a') + "12345" + "\r\nnext"));
    EXPECT_EQ(lines(), (Lines{std::string(294, 'a'), "12345", "next"}));
}

TEST_F(Load, LinesAcrossTheBlocksOfTheReaderAreWhole) {
    std::mt19937 random(3);
    std::string file;
    Lines expected;
    while (file.size() < 3'500'000) {
        expected.push_back(std::string(random() % 297, static_cast<char>('a' + random() % 26)));
        file += expected.back() + (random() % 2 ? "\r\n" : "\n");
    }
    ASSERT_TRUE(load(file + "x"));
    expected.emplace_back("x");
    EXPECT_EQ(lines(), expected);
}

TEST_F(Load, ALineAtTheEndOfABlockIsCutAsAnywhere) {
    constexpr std::size_t kBlock = 1 << 20;
    const std::string last = std::string(293, 'a') + "12345\r\nnext";
    ASSERT_TRUE(load(last));
    const Lines alone = lines();
    for (std::size_t rest = 290; rest <= 305; ++rest) {  // how much of it the first block holds
        std::string filler;
        while (filler.size() < kBlock - rest)
            filler += std::string(std::min<std::size_t>(199, kBlock - rest - filler.size() - 1), 'f') + "\n";
        ASSERT_TRUE(load(filler + last));
        const Lines all = lines();
        EXPECT_EQ(Lines(all.end() - static_cast<std::ptrdiff_t>(alone.size()), all.end()), alone) << rest;
    }
}

TEST_F(Load, AFileThatCannotBeReadToItsEndLeavesNoLines) {
    static int reads;
    reads = 0;
    SetFileFault([](FileStep step) { return step == FileStep::Read && reads++ == 1; });
    std::string bytes;
    while (bytes.size() < 1'500'000)
        bytes += std::string(100, 'a') + "\n";
    EXPECT_FALSE(load(bytes));
    SetFileFault(nullptr);
    EXPECT_EQ(reads, 2);
    EXPECT_FALSE(document_.isNamed());
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(200));
    EXPECT_EQ(text(0), "");
    EXPECT_EQ(document_.disk().checksum, std::nullopt);
}

TEST_F(Load, OneFileIsKnownByAllItsNames) {
    disk_.makeDirectory("SUB");
    ASSERT_TRUE(load("abc"));
    disk_.link("A.TXT", "LINK.TXT");
    disk_.put("B.TXT", "abc");
    const std::pair<std::string, bool> cases[] = {
        {disk_.path("a.txt"), true},   {disk_.path("SUB\\..\\A.TXT"), true}, {disk_.path("LINK.TXT"), true},
        {disk_.path("A.TXT. "), true}, {disk_.path() + "/./A.TXT", true},    {"A.TXT", true},
        {disk_.path("B.TXT"), false},  {disk_.path("NONE.TXT"), false},      {disk_.path("SUB"), false},
    };
    for (const auto& [name, isSame] : cases)
        EXPECT_EQ(FileIdentity(name).isFileOf(document_), isSame) << name;
    document_.setName("untitled.txt");
    EXPECT_FALSE(FileIdentity("untitled.txt").isFileOf(document_)) << "not a name of a file";
}

TEST_F(Load, WhatAFileHoldsIsKnown) {
    struct Case {
        std::string bytes;
        ContentsKind kind;
        bool crLf;
        bool lf;
        bool changesUnedited;
    };
    const Case cases[] = {
        {"one\r\ntwo\r\n", ContentsKind::Text, true, false, false},
        {"one\ntwo\r\n", ContentsKind::Text, true, true, false},
        {"one", ContentsKind::Text, false, false, false},
        {std::string("a\0b\r\n", 5), ContentsKind::Binary, true, false, false},
        {std::string("a\0b\n", 4), ContentsKind::Binary, false, true, true},
        {std::string("\xFF\xFE"
                     "a\0\n\0",
                     6),
         ContentsKind::Utf16, false, true, true},
        {"\xFE\xFF", ContentsKind::Utf16, false, false, true},
        {std::string(8192, 'x') + std::string(1, '\0'), ContentsKind::Text, false, false, false},
    };
    for (const Case& c : cases) {
        load(c.bytes);
        const DiskState& disk = document_.disk();
        EXPECT_EQ(disk.kind, c.kind) << c.bytes.substr(0, 20);
        EXPECT_EQ(disk.lineEnds.crLf, c.crLf) << c.bytes.substr(0, 20);
        EXPECT_EQ(disk.lineEnds.lf, c.lf) << c.bytes.substr(0, 20);
        EXPECT_EQ(disk.changesUnedited, c.changesUnedited) << c.bytes.substr(0, 20);
    }
}

TEST_F(Load, ExactlyTheLimitOfLinesIsWhole) {
    std::string file;
    for (int i = 0; i < 90001; ++i)
        file += "x\n";
    ASSERT_TRUE(load(file));
    EXPECT_FALSE(document_.isTruncated());
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(90000));
    EXPECT_TRUE(notices_.boxes.empty());

    ASSERT_TRUE(load(file + "y"));
    EXPECT_TRUE(document_.isTruncated());
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(90000));
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0], (BoxNotice{std::string(LoadText(TextId::FileTooLarge)), "Vexa 95", BoxButtons::Ok}));
}

TEST_F(Load, LargeFilesAreReadWholeByChoice) {
    options_.habits.largeFiles = true;
    std::string file = std::string(3'000'000, 'a') + "\r\n";
    for (int i = 0; i < 90'001; ++i)
        file += "x\n";
    ASSERT_TRUE(load(file + "y"));
    EXPECT_FALSE(document_.isTruncated() || document_.areLinesWrapped());
    EXPECT_TRUE(notices_.boxes.empty());
    EXPECT_EQ(document_.text(LineIndex(0)).size(), 3'000'000u);
    EXPECT_EQ(text(90'002), "y");
    for (const std::int32_t column : {2'000'000, TextLine::kLastColumn}) {
        view_.goTo(LineIndex(0), CharColumn(column));
        EXPECT_EQ(document_.column(), CharColumn(column));
    }
    File huge(disk_.path("HUGE.BIN"), platform::OpenMode::CreateAlways);
    ASSERT_TRUE(huge.seek((std::uint64_t{512} << 20) + 1) && huge.endHere() && huge.close());
    document_.setName(disk_.path("HUGE.BIN"));
    EXPECT_FALSE(document_.load());
    EXPECT_EQ(document_.loadFailure(), TextId::FileTooLargeToOpen);
}

TEST_F(Load, TheStoreGrowsInLargeStepsDuringALoadOnly) {
    std::string file;
    for (int i = 0; i < 11; ++i)
        file += "x\n";
    ASSERT_TRUE(load(file));
    EXPECT_EQ(document_.lines().capacity(), 510);
    EXPECT_EQ(document_.lines().growBy(), 10);
}

TEST_F(Load, WhatCannotBeOpenedLeavesAnEmptyDocumentThatIsNotSavedOverIt) {
    ASSERT_TRUE(load("old text"));
    disk_.makeDirectory("SUB");
    for (const char* name : {"MISSING.TXT", "SUB"}) {
        document_.setName(disk_.path(name));
        EXPECT_FALSE(document_.load()) << name;
        EXPECT_FALSE(document_.isNamed());
        EXPECT_FALSE(document_.write());
        EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(200));
        EXPECT_EQ(text(0), "");
    }
    document_.setName("");
    EXPECT_FALSE(document_.load());
}

TEST_F(Load, AFileThatAnotherProgramHoldsIsNotLoaded) {
    disk_.put("A.TXT", "abc");
    document_.setName(disk_.path("A.TXT"));
    const test::LockedFile held(disk_.path("A.TXT"));
    EXPECT_FALSE(document_.load());
    EXPECT_FALSE(document_.isNamed());
}

TEST_F(Load, OfAHugeFileOnlyTheLinesThatAreKeptAreRead) {
    File huge(disk_.path("HUGE.BIN"), platform::OpenMode::CreateAlways);
    ASSERT_TRUE(huge.seek(std::uint64_t{1} << 30) && huge.endHere() && huge.close());
    document_.setName(disk_.path("HUGE.BIN"));
    ASSERT_TRUE(document_.load());
    EXPECT_TRUE(document_.isTruncated());
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(90000));
    EXPECT_EQ(text(90000), std::string(294, '\0'));
}

TEST_F(Load, ALoadForgetsHistoryAndMarking) {
    ASSERT_TRUE(load("abc"));
    document_.marked() = {MarkMode::Lines, true, {}, {}};
    document_.countChange(1);
    document_.setCurrentLine(LineIndex(5));
    ASSERT_TRUE(document_.load());
    EXPECT_FALSE(document_.isModified());
    EXPECT_FALSE(document_.marked().active);
    EXPECT_EQ(document_.currentLine(), LineIndex(0));
}

TEST_F(Load, ANewDocumentHasItsOnlyLineFarDown) {
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(200)) << "before any text";
    document_.newEmpty();
    EXPECT_FALSE(document_.isNamed());
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(200));
    EXPECT_TRUE(document_.lines().isVacant(0));
    EXPECT_FALSE(document_.lines().isVacant(200));
}

}  // namespace
}  // namespace vexa

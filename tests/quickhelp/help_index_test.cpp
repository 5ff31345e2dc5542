// What the index of a help file holds, and what comes of files that are no sound help files.
#include "quickhelp/help_index.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/file.h"
#include "quickhelp/help_file_writer.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

class HelpIndexTest : public testing::Test {
  protected:
    // A help file with one title and these keywords.
    static HelpFileWriter writerOf(const std::vector<HelpKeyword>& keywords, const TreeShape& shape = {2048, "F24"}) {
        HelpFileWriter writer;
        writer.addSystem(21, {{kTitleRecord, TextZ("Title")}});
        writer.addKeywords(keywords, shape);
        return writer;
    }
    static std::vector<HelpKeyword> numbered(int count) {
        std::vector<HelpKeyword> keywords;
        for (int i = 0; i < count; ++i)
            keywords.push_back({"word" + std::to_string(i)});
        return keywords;
    }
    static std::string linesOf(const std::vector<HelpKeyword>& keywords) {
        std::string lines;
        for (const HelpKeyword& keyword : keywords)
            lines += keyword.text + "\r\n";
        return lines;
    }

    IndexResult build(const std::string& bytes) const {
        disk.put("A.HLP", bytes);
        return BuildHelpIndex("A.HLP", disk.path("A.ZIX"));
    }
    // The lines of the index behind the name of the help file, or why there is none.
    std::string built(const std::string& bytes) const {
        disk.put("A.ZIX", "old");
        const IndexResult result = build(bytes);
        EXPECT_EQ(disk.count(), result == IndexResult::Written ? 2u : 1u) << "the index or nothing";
        if (result != IndexResult::Written) return std::string(TextOf(result));
        const std::string index = disk.get("A.ZIX");
        return index.substr(index.find('\n', index.find('\n') + 1) + 1);
    }

    TestDisk disk;
};

TEST_F(HelpIndexTest, HoldsCountNameTitleAndKeywords) {
    disk.makeDirectory("Sub");
    ASSERT_TRUE(platform::ChangeDirectory(disk.path("Sub")));
    disk.put("Sub\\help.hlp", writerOf(Keywords({"_exit", "strcpy"})).bytes());
    EXPECT_EQ(BuildHelpIndex("help", disk.path("B.ZIX")), IndexResult::Written) << "with .HLP added";
    std::string name = platform::CurrentDirectory() + "\\help.HLP";
    for (char& c : name)
        c = static_cast<char>(std::toupper(c));
    EXPECT_EQ(disk.get("B.ZIX"), "00002\r\n" + name + "\r\nTitle\r\n_exit\r\nstrcpy\r\n");
    platform::ChangeDirectory(disk.path() + "\\");
}

TEST_F(HelpIndexTest, ATitleLineForEachTitle) {
    const std::string keywords = "k\r\n";
    const std::vector<std::pair<std::vector<SystemRecord>, std::string>> cases{
        {{}, ""},
        {{{2, "other"}, {kTitleRecord, TextZ("A")}, {3, Bytes32(0)}}, "A\r\n"},
        {{{kTitleRecord, TextZ("A")}, {kTitleRecord, TextZ("")}, {kTitleRecord, "no end"}}, "A\r\n\r\nno end\r\n"},
    };
    for (const auto& [records, titles] : cases) {
        HelpFileWriter writer = writerOf(Keywords({"k"}));
        writer.addSystem(33, records);
        EXPECT_EQ(built(writer.bytes()), titles + keywords);
    }
    HelpFileWriter writer = writerOf(Keywords({"k"}));
    writer.addSystem15("Old");
    EXPECT_EQ(built(writer.bytes()), "Old\r\n" + keywords);
    writer.addSystem15(std::string(32, 't') + "cut");
    EXPECT_EQ(built(writer.bytes()), std::string(32, 't') + "\r\n" + keywords);
}

TEST_F(HelpIndexTest, KeywordsAreCutTo79Characters) {
    const auto keywords = Keywords({std::string(100, 'a'), std::string(79, 'b')});
    EXPECT_EQ(built(writerOf(keywords).bytes()),
              "Title\r\n" + std::string(79, 'a') + "\r\n" + std::string(79, 'b') + "\r\n");
}

TEST_F(HelpIndexTest, TreesOfAnyPageSizeAndDepthAreRead) {
    for (const auto pageSize : std::initializer_list<std::uint16_t>{1024, 2048, 4096}) {
        for (const std::size_t perPage : {std::size_t{3}, std::size_t{20}, SIZE_MAX}) {
            for (const int count : {0, 1, 700}) {
                const auto keywords = numbered(count);
                EXPECT_TRUE(built(writerOf(keywords, {pageSize, "F24", perPage}).bytes()) ==
                            "Title\r\n" + linesOf(keywords))
                    << pageSize << " " << perPage << " " << count;
            }
        }
    }
}

TEST_F(HelpIndexTest, AtMost99999KeywordsAreKept) {
    const std::vector<HelpKeyword> keywords(100'005, HelpKeyword{"k"});
    const std::string lines = built(writerOf(keywords).bytes());
    EXPECT_EQ(lines.size(), sizeof "Title\r\n" - 1 + 99'999 * 3);
    EXPECT_TRUE(disk.get("A.ZIX").starts_with("99999\r\n"));
}

// The number of a page's first entry leads behind the last entry of the page before.
TEST_F(HelpIndexTest, TheFirstFileOfALaterDirectoryPageIsNotFound) {
    HelpFileWriter writer = writerOf(Keywords({"k"}));  // |KWBTREE |KWDATA |KWMAP |SYSTEM
    writer.setDirectoryEntriesPerPage(2);
    EXPECT_EQ(built(writer.bytes()), "Title\r\nk\r\n");
    writer.setDirectoryEntriesPerPage(3);
    std::string bytes = writer.bytes();
    EXPECT_EQ(built(bytes), "Unknown help file format.");

    const std::string last = TextZ("|KWMAP");
    const std::string missed = bytes.substr(bytes.find(TextZ("|SYSTEM")), sizeof "|SYSTEM" + 4);
    bytes.replace(bytes.find(last) + last.size() + 4, missed.size(), missed);
    EXPECT_EQ(built(bytes), "Title\r\nk\r\n") << "what stands behind the last entry is taken for one";

    writer.addFile("AAA", "");
    writer.addFile("BBB", "");
    writer.setDirectoryEntriesPerPage(2);
    EXPECT_EQ(built(writer.bytes()), "No index information found.");
}

TEST_F(HelpIndexTest, FailuresSayWhyAndLeaveNoIndex) {
    const std::string sound = writerOf(numbered(30), {2048, "F24", 10}).bytes();
    const auto changed = [&](std::size_t position, const std::string& bytes) {
        return std::string(sound).replace(position, bytes.size(), bytes);
    };
    const std::size_t tree = sound.find(Bytes16(0x293B));  // its header; |KWBTREE is the first file
    const std::size_t lastLeaf = tree + 38 + 2 * 2048;
    HelpFileWriter withoutSystem = writerOf(Keywords({"k"}));
    withoutSystem.addFile("|SYSTEM", "no magic");
    HelpFileWriter withoutKeywords;
    withoutKeywords.addSystem15("Title");
    HelpFileWriter longName = writerOf(Keywords({"k"}));
    longName.addFile(std::string(51, '!'), "");
    HelpFileWriter longestName = writerOf(Keywords({"k"}));
    longestName.addFile(std::string(50, '!'), "");

    const std::string unknown = "Unknown help file format.";
    const struct {
        const char* what;
        std::string bytes;
        std::string outcome;
    } cases[] = {
        {"an empty file", "", unknown},
        {"another magic", changed(0, "MZ"), unknown},
        {"no directory", changed(4, Bytes32(0xFFFFFFF0)), unknown},
        {"nothing in the directory", HelpFileWriter().bytes(), unknown},
        {"another magic of |SYSTEM", withoutSystem.bytes(), unknown},
        {"no |KWBTREE", withoutKeywords.bytes(), "No index information found."},
        {"a name of 51 characters", longName.bytes(), "Unexpected program error."},
        {"a name of 50 characters", longestName.bytes(), "Title\r\nk\r\n"},
        {"a keyword more than it says", changed(tree + 34, Bytes32(29)), unknown},
        {"a keyword less than it says", changed(tree + 34, Bytes32(31)), unknown},
        {"fewer than none", changed(tree + 34, Bytes32(0xFFFFFFFF)), unknown},
        {"leaves that lead back", changed(lastLeaf + 6, Bytes16(0)), unknown},
        {"leaves that lead out of the file", changed(lastLeaf + 6, Bytes16(9999)), unknown},
        {"a page with more entries than bytes", changed(lastLeaf + 2, Bytes16(0xFFFF)), unknown},
        {"more levels than pages", changed(tree + 32, Bytes16(0xFFFF)), unknown},
    };
    for (const auto& c : cases)
        EXPECT_EQ(built(c.bytes), c.outcome) << c.what;
}

TEST_F(HelpIndexTest, EveryCutAndDamageHasAnOutcome) {
    HelpFileWriter writer = writerOf(numbered(6), {256, "F24", 2});
    writer.setDirectoryEntriesPerPage(2);
    const std::string sound = writer.bytes();
    for (std::size_t length = 0; length < sound.size(); length += 31)
        built(sound.substr(0, length));
    for (std::size_t i = 0; i < sound.size(); ++i) {
        if (sound[i] == '\0') continue;
        std::string damaged = sound;
        damaged[i] = static_cast<char>(~damaged[i]);
        built(damaged);
    }
}

TEST_F(HelpIndexTest, DisksThatFailAreTold) {
    const std::string bytes = writerOf(Keywords({"k"})).bytes();
    EXPECT_EQ(BuildHelpIndex("NONE.HLP", disk.path("A.ZIX")), IndexResult::CannotOpen);
    EXPECT_EQ(TextOf(IndexResult::CannotOpen), "Unable to open help file.");
    EXPECT_EQ(BuildHelpIndex("A.HLP", disk.path("NO\\A.ZIX")), IndexResult::CannotOpen);
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Flush, FileStep::Close}) {
        static FileStep failing;
        failing = step;
        SetFileFault([](FileStep at) { return at == failing; });
        EXPECT_EQ(build(bytes), IndexResult::CannotWrite);
        SetFileFault(nullptr);
        EXPECT_EQ(disk.count(), 1u);
    }
    EXPECT_EQ(TextOf(IndexResult::CannotWrite), "Can't write to disk.");

    disk.put("A.ZIX", "old");
    disk.setReadOnly("A.ZIX", true);
    EXPECT_EQ(build(bytes), IndexResult::CannotWrite);
    EXPECT_EQ(disk.get("A.ZIX"), "old") << "protected";
}

}  // namespace
}  // namespace vexa::test

// Searching in files, the list of what was found, and replacing there.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "document/text/file_identity.h"
#include "external/external_session.h"
#include "search/files/file_patterns.h"
#include "search/files/file_search_job.h"
#include "search/files/hit_replacement.h"
#include "search/find_session.h"
#include "support/test_disk.h"

#ifndef _WIN32
#include <filesystem>

#include "base/platform/host/sandbox.h"
#endif

namespace vexa::test {
namespace {

using Texts = std::vector<std::string>;

// Opens documents as the frame would; the last one is the active one.
class Windows : public SearchedFiles {
  public:
    explicit Windows(Notices& notices) : notices_(notices) {}

    TextDocument* open(const std::string& path) {
        auto& session = sessions_[path];
        active_ = session.get();
        if (active_) return &active_->document;
        session = std::make_unique<Session>(notices_);
        active_ = session.get();
        active_->document.setName(path);
        EXPECT_TRUE(active_->document.load());
        return &active_->document;
    }
    void close(const std::string& path) { sessions_.erase(path); }

    bool openFileAtLine(const std::string& path, std::int32_t line) override {
        open(path);
        active_->view.goTo(LineIndex(line - 1), CharColumn(0));
        return true;
    }
    const TextDocument* documentOf(const std::string& path, std::uint64_t size) const override {
        for (const auto& [name, session] : sessions_)
            if (IsFileOf(session->document, path, size)) return &session->document;
        return nullptr;
    }
    std::string_view delimitersOf(const std::string&) override { return ";"; }
    EditView* activeView() override { return &active_->view; }
    void refreshActive() override {}

  private:
    struct Session {
        explicit Session(Notices& notices) : document(options, notices), view(document, options, notices) {
            profile.setDelimiters(";");
            document.setProfile(profile);
            view.resize(10, 80);
        }
        EditorOptions options;
        ExtensionProfile profile;
        TextDocument document;
        EditView view;
    };

    Notices& notices_;
    std::map<std::string, std::unique_ptr<Session>> sessions_;
    Session* active_ = nullptr;
};

struct FilesSearch : testing::Test {
    FilesSearch() { list.attach(&view); }

    void start(const std::string& text) {
        request.options.setFindText(text, false);
        request.folder = disk.path();
        job.start(request);
    }
    // The rows of the lines found, and the last words.
    Texts find(const std::string& text) {
        start(text);
        while (job.work()) {
        }
        Texts rows;
        for (std::size_t row = 0; row < list.rowCount(); ++row)
            if (list.hitOf(row)) rows.emplace_back(list.rowText(row));
        return rows;
    }
    void type(char c) { windows.activeView()->key(KeyEvent{.character = static_cast<unsigned char>(c)}); }
    std::string lastRow() const { return std::string(list.rowText(list.rowCount() - 1)); }

    TestDisk disk;
    RecordingNotices notices;
    RecordingView view;
    SearchOptions options;
    Windows windows{notices};
    HitList list{windows, options, notices};
    FileSearchJob job{list, windows, notices};
    FileSearchRequest request;
};

TEST(FilePatterns, NamesMatchAsTheUserExpects) {
    struct Row {
        const char* patterns;
        const char* name;
        bool matches;
    };
    for (const Row& row : {Row{"", "a", true}, Row{" ; ", "a", true}, Row{"*.*", "makefile", true},
                           Row{"*.c;*.h", "A.H", true}, Row{"*.c;*.h", "a.hpp", false}, Row{" *.c ; *.h ", "a.h", true},
                           Row{"a?c*e", "AbcdE", true}, Row{"a?c*e", "ac", false}, Row{"*a*b*", "xxaxxb", true},
                           Row{"*ab", "aab", true}, Row{"*.c", "a.c.c", true}, Row{"a", "", false}})
        EXPECT_EQ(FilePatterns(row.patterns).match(row.name), row.matches) << row.patterns << " " << row.name;
}

// What is found in a block is what is found in its lines one by one.
TEST(BlockSearch, FindsTheLinesThatHaveAMatch) {
    const char* const patterns[] = {"ab",  "^ab", "ab$",   "a$",     "^$",   "$",          "^b*$",  "b*",     "[^a]",
                                    "a+b", "b+$", "a.b",   "ab|^ba", "(a)b", "\\<ab",      "ab\\>", "[ab]+ ", "b?a$",
                                    "^",   "x+",  "b$|a$", "[^b]+a", "a*b$", "(ab|ba)x*$", "x"};
    std::uint32_t random = 1;
    const auto next = [&random](std::uint32_t below) {
        return ((random = random * 1664525 + 1013904223) >> 16) % below;
    };
    for (int round = 0; round < 60; ++round) {
        std::string text;
        const std::uint32_t length = next(120);
        for (std::uint32_t i = 0; i < length; ++i)
            text += std::string_view("aabb x\n\n\r")[next(9)];
        for (const char* pattern : patterns) {
            for (const int way : {0, 1, 2, 3}) {
                SearchOptions options;
                options.setFindText(pattern, false);
                options.setRegularExpression((way & 1) != 0);
                options.setMatchCase((way & 2) != 0);
                LineSearch lines(options, {});
                std::vector<std::size_t> expected;
                for (std::size_t begin = 0; begin < text.size();) {
                    const std::size_t end = std::min(text.find('\n', begin), text.size());
                    std::string line = text.substr(begin, end - begin);
                    if (end < text.size() && line.ends_with('\r')) line.pop_back();
                    if (lines.find(line, CharColumn(0))) expected.push_back(begin);
                    begin = end + 1;
                }
                std::vector<std::size_t> found;
                std::string block = text;
                BlockSearch search(options);
                char* from = block.data();
                char* const end = from + block.size();
                while (const auto line = search.find(from, end)) {
                    found.push_back(static_cast<std::size_t>(line->begin - block.data()));
                    from = line->next;
                }
                ASSERT_EQ(found, expected) << pattern << " way " << way << " in " << testing::PrintToString(text);
                ASSERT_EQ(block, text);
            }
        }
    }
}

TEST_F(FilesSearch, GoesThroughFoldersInOrder) {
    disk.makeDirectory("sub");
    disk.makeDirectory("sub\\deep");
    disk.put("b.c", "one\r\nNEEDLE two needle\r\n");
    disk.put("A.h", "needle");
    disk.put("a.txt", "needle");
    disk.put("sub\\x.c", "\n\n\tneedle\nneedle\n");
    disk.put("sub\\deep\\y.h", std::string("needle\0", 7));
    disk.put("sub\\late.c", "needle" + std::string(LineBlocks::kLookedAt, '-') + '\0');
    disk.put(".hidden.c", "needle");
    disk.setHidden(".hidden.c");
    request.patterns = "*.c;*.h";
    const std::string late = "sub\\late.c:1: needle" + std::string(294, '-');
    EXPECT_EQ(find("needle"),
              (Texts{"A.h:1: needle", "b.c:2: NEEDLE two needle", late, "sub\\x.c:3: \tneedle", "sub\\x.c:4: needle"}));
    EXPECT_EQ(lastRow(), "5 lines found in 4 of 5 files.");
    EXPECT_EQ(view.shows, 1);
    request.subfolders = false;
    request.options.setMatchCase(true);
    request.patterns = "";
    EXPECT_EQ(find("needle"), (Texts{"A.h:1: needle", "a.txt:1: needle", "b.c:2: NEEDLE two needle"}));
    const RowPart part = list.highlight(list.firstHit() + 2);
    EXPECT_EQ(list.rowText(list.firstHit() + 2).substr(part.start), "needle");
}

TEST_F(FilesSearch, ALargeFolderIsReadInParts) {
    for (int i = 0; i < platform::DirectoryReader::kPart + 50; ++i)
        disk.put(std::to_string(1000 + i), "");
    FolderWalk walk(disk.path(), "*9", true);
    int parts = 0;
    while (walk.step() == FolderWalk::Step::Folder)
        ++parts;
    EXPECT_EQ(parts, 3) << "one to begin it";
    EXPECT_EQ(walk.file(), disk.path("1009"));
    EXPECT_EQ(walk.step(), FolderWalk::Step::File);
    EXPECT_EQ(walk.file(), disk.path("1019"));
}

TEST_F(FilesSearch, TheEndOfAWholeWordDependsOnTheFile) {
    disk.put("a.c", "foo;\nfoobar\nfoo bar\n");
    request.options.setWholeWord(true);
    EXPECT_EQ(find("foo"), (Texts{"a.c:1: foo;", "a.c:3: foo bar"}));
}

TEST_F(FilesSearch, LongLinesAndLargeFilesKeepTheirNumbers) {
    const std::string lines(LineBlocks::kBlock, '\n');
    disk.put("a", lines + std::string(2 * LineBlocks::kBlock, 'x') + "needle\nz needle");
    const std::string row = "a:262145: ..." + std::string(60, 'x') + "needle";
    EXPECT_EQ(find("needle"), (Texts{row, "a:262146: z needle"}));
    const RowPart part = list.highlight(list.firstHit());
    EXPECT_EQ(list.rowText(list.firstHit()).substr(part.start, part.length), "needle");
}

TEST_F(FilesSearch, WhatCannotBeReadIsCounted) {
    disk.put("locked", "needle");
    disk.put("open", "needle");
    std::string folder;
    while (disk.path(folder).size() < 240) {
        folder += folder.empty() ? "long" : "\\long";
        disk.makeDirectory(folder);
    }
    disk.put(folder + "\\short", "needle");
    std::string told = "1 file or folder could not be read.";
#ifndef _WIN32  // where the tests themselves cannot make such a file
    disk.put(folder + "\\a-name-that-is-too-long", "needle");
    told = "2 files or folders could not be read.";
#endif
    const LockedFile locked(disk.path("locked"));
    EXPECT_EQ(find("needle"), (Texts{"open:1: needle", folder + "\\short:1: needle"}));
    EXPECT_EQ(lastRow(), told);
}

#ifndef _WIN32  // the host's links are those of the tests
TEST_F(FilesSearch, LinksLeadToEachFolderOnce) {
    disk.makeDirectory("sub");
    disk.put("sub\\a", "needle");
    const std::filesystem::path root = platform::host::HostPath(disk.path());
    std::filesystem::create_directory_symlink(root, root / "sub/up");
    std::filesystem::create_directory_symlink(root / "sub", root / "sub/self");
    std::filesystem::create_directory_symlink(root / "none", root / "sub/nowhere");
    EXPECT_EQ(find("needle"), (Texts{"sub\\a:1: needle"}));
    EXPECT_EQ(lastRow(), "1 line found in 1 of 1 file.");
}
#endif

#ifndef _WIN32
TEST_F(FilesSearch, OpenDocumentsAreFoundByOtherNamesOfTheirFiles) {
    disk.put("a", "old\n");
    disk.put("other", "len\n");
    std::filesystem::create_hard_link(platform::host::HostPath(disk.path("a")),
                                      platform::host::HostPath(disk.path("link")));
    windows.open(disk.path("link"));
    type('n');
    EXPECT_EQ(find("n"), (Texts{"a:1: nold", "link:1: nold", "other:1: len"}));
}
#endif

TEST_F(FilesSearch, OpenDocumentsAreSearchedAsTheyAre) {
    disk.put("a", "old\n");
    windows.open(disk.path("a"));
    type('n');
    EXPECT_EQ(find("n"), (Texts{"a:1: nold"}));
    disk.put("a", "needle");
    EXPECT_EQ(find("needle"), Texts());
    windows.close(disk.path("a"));
    EXPECT_EQ(find("needle"), (Texts{"a:1: needle"}));
}

TEST_F(FilesSearch, TheListIsFilledToItsLimit) {
    disk.put("a", std::string(2 * ListLines::kMostLines + 20, '\n'));
    request.options.setRegularExpression(true);
    EXPECT_EQ(find("^").size() + list.firstHit(), ListLines::kMostLines);
    EXPECT_EQ(list.rowText(list.rowCount() - 2),
              "The list is full: the search has ended before all files were searched.");
}

TEST_F(FilesSearch, TheUserStopsIt) {
    disk.put("a", "needle");
    start("needle");
    while (!list.hitOf(list.firstHit()))  // a busy machine may come to no file in one part
        ASSERT_TRUE(job.work());
    list.stopFilling();
    EXPECT_FALSE(job.work());
    EXPECT_EQ(notices.lastStatus(), "Search of files stopped. 1 line found in 1 of 1 file.");
    EXPECT_EQ(find("needle").size(), 1u) << "the next is not stopped";
}

TEST_F(FilesSearch, StepsShowTheMatches) {
    disk.put("a", "x\n  needle\n");
    disk.put("b", "needle\n");
    ASSERT_EQ(find("needle").size(), 2u);
    ListSteps steps;
    steps.add(list);
    steps.next();
    EXPECT_EQ(windows.activeView()->document().fullPath(), disk.path("a"));
    EXPECT_EQ(windows.activeView()->positionText(), " L:00002 C:003");
    EXPECT_TRUE(windows.activeView()->document().marked().active);
    steps.next();
    EXPECT_EQ(windows.activeView()->document().fullPath(), disk.path("b"));
    steps.next();
    EXPECT_EQ(notices.lastStatus(), "No more lines found.");
    steps.previous();
    EXPECT_EQ(windows.activeView()->document().fullPath(), disk.path("b"));
    type('x');
    list.activateRow();
    EXPECT_EQ(notices.lastStatus(), "This line has changed since the search.");
}

TEST_F(FilesSearch, ReplacementsAreOneUndoInEachDocument) {
    disk.put("a", "foo foo\nbar\nfoo\n");
    disk.put("b", "foo\n");
    ASSERT_EQ(find("foo").size(), 3u);
    TextDocument& a = *windows.open(disk.path("a"));
    windows.activeView()->goTo(LineIndex(2), CharColumn(0));
    type('x');
    HitReplacement replacement(list, windows);
    EXPECT_EQ(replacement.replace({0, list.rowCount()}, "food"),
              "3 replacements in 2 files. Nothing is saved yet. 1 line passed over, changed since the search.");
    EXPECT_EQ(a.text(LineIndex(0)), "food food");
    EXPECT_EQ(a.text(LineIndex(2)), "xfoo");
    EXPECT_EQ(disk.get("a"), "foo foo\nbar\nfoo\n");
    const TextDocument& b = windows.activeView()->document();
    EXPECT_TRUE(b.isModified());
    EXPECT_TRUE(windows.activeView()->undo());
    EXPECT_FALSE(b.isModified());
    windows.open(disk.path("a"));
    EXPECT_TRUE(windows.activeView()->undo());
    EXPECT_EQ(a.text(LineIndex(0)), "foo foo");
    EXPECT_EQ(a.text(LineIndex(2)), "xfoo");
}

TEST_F(FilesSearch, ReplacementsMayHaveGroupsAndLineEnds) {
    const Habits habits{.replacementGroups = true};
    request.options = SearchOptions(habits);
    request.options.setRegularExpression(true);
    disk.put("a", "x1 x2\nb\nx3\n");
    ASSERT_EQ(find("x([0-9])").size(), 2u);
    HitReplacement(list, windows).replace({0, list.rowCount()}, "<\\1\\n");
    EditView& active = *windows.activeView();
    const auto lines = [&active] {
        Texts texts;
        for (LineIndex line; line <= active.document().lastLine(LastUsed::Text); ++line)
            texts.emplace_back(active.document().text(line));
        return texts;
    };
    EXPECT_EQ(lines(), (Texts{"<1", " <2", "", "b", "<3"}));
    EXPECT_TRUE(active.undo());
    EXPECT_EQ(lines(), (Texts{"x1 x2", "b", "x3"}));
}

TEST_F(FilesSearch, SoManyFilesAreNotOpened) {
    for (std::size_t i = 0; i <= HitReplacement::kMostFiles; ++i)
        disk.put(std::to_string(i), "foo");
    ASSERT_EQ(find("foo").size(), HitReplacement::kMostFiles + 1);
    HitReplacement replacement(list, windows);
    EXPECT_EQ(replacement.replace({0, list.rowCount()}, "x"),
              "These lines are in more than 100 files. Select fewer of them.");
    EXPECT_EQ(windows.documentOf(disk.path("0"), 0), nullptr);
}

}  // namespace
}  // namespace vexa::test

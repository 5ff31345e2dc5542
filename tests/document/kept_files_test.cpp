// Files that stay as they are: what nobody has edited is saved byte by byte as it was read.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "document/document_session.h"
#include "document/memory_clipboard.h"
#include "document/text/document_line_ends.h"
#include "document/text/text_writer.h"
#include "document/view/text_exchange.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

class KeptFile : protected test::DocumentSession {
  public:
    KeptFile() {
        options_.habits.keepFiles = true;
        view_.setClipboard(clipboard_);
    }
    void load(std::string_view bytes) {
        disk_.put("A.TXT", bytes);
        document_.setName(disk_.path("A.TXT"));
        ASSERT_TRUE(document_.load());
        ASSERT_TRUE(notices_.boxes.empty()) << notices_.boxes.back().text;
    }
    std::string saved() {
        std::string bytes;
        const auto sink = [&bytes](std::string_view part) {
            bytes += part;
            return true;
        };
        WriteLines(document_, sink, options_.FileWrite);
        return bytes;
    }
    void change(LineEnd end) {
        view_.editor().run<UnifyLineEnds>(end);
        view_.finish();
    }
    const LineEndStyle& style() const { return document_.lineEndStyle(); }

    // One character typed and deleted leaves the bytes alone, and one typed is the only difference.
    void expectUnchanged(const std::string& bytes, std::size_t seed) {
        load(bytes);
        const auto lines = static_cast<std::size_t>(document_.lastLine(LastUsed::Text).value) + 1;
        view_.goTo(LineIndex(static_cast<std::int32_t>(seed % lines)), CharColumn(0));
        const auto length = static_cast<std::size_t>(view_.editor().textEnd().value);
        view_.goTo(document_.currentLine(), CharColumn(static_cast<std::int32_t>(seed % 300 % (length + 1))));
        type("\x01");
        std::string typed = saved();
        press(kKeyBackspace);
        ASSERT_TRUE(saved() == bytes);
        ASSERT_TRUE(document_.isModified() && document_.write());
        ASSERT_TRUE(disk_.get("A.TXT") == bytes);
        const auto at = std::ranges::mismatch(typed, bytes).in1;
        ASSERT_TRUE(at != typed.end() && *at == '\x01');
        typed.erase(at);
        ASSERT_TRUE(typed == bytes);
    }

    using DocumentSession::document_;
    using DocumentSession::options_;
    using DocumentSession::press;
    using DocumentSession::type;
    using DocumentSession::view_;
    test::TestDisk disk_;
    test::MemoryClipboard clipboard_;
};

// ---- files of all kinds ------------------------------------------------------------------------------------------

std::string RandomText(std::mt19937& random, const std::vector<std::string>& ends, std::string_view characters) {
    std::string text;
    for (auto lines = random() % 40; lines > 0; --lines) {
        for (auto length = random() % 90; length > 0; --length)
            text += characters[random() % characters.size()];
        text += ends[random() % ends.size()];
    }
    if (random() % 2) text += "no end";
    return text;
}

TEST(KeptFiles, EveryByteOfFilesOfAllKindsStays) {
    const std::vector<std::string> ends[] = {
        {"\r\n"}, {"\n"}, {"\r"}, {"\r\n", "\n"}, {"\r\n", "\n", "\r", "\r\r\n", "\n\r", "\r\n\r\n\n"}};
    const std::string_view characters[] = {"ab \t", std::string_view("\0\x1A\x7F\x80\xFF x", 7), "\xC3\xA4  \t"};
    std::mt19937 random(7);
    KeptFile file;
    for (unsigned i = 0; i < 300; ++i) {
        SCOPED_TRACE(i);
        file.expectUnchanged(RandomText(random, ends[i % std::size(ends)], characters[i % 3]), random());
        if (testing::Test::HasFailure()) return;
    }
    std::string bytes(70'000, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
    const std::string longLine(10'000'000, 'x');
    const std::string blocks = std::string((1 << 20) - 1, 'y') + "\r\n" + std::string((1 << 20) - 2, 'z') + "\r";
    const std::string spaced = "  \t \r\n\t\t\n" + std::string(297, 'a') + " b\r\n";
    for (const std::string& contents :
         {std::string(), std::string("\n"), std::string("\r\n\r\n\r\n"), std::string("a\r\nb\r\n\x1A"),
          std::string("\x1A"), bytes, longLine, longLine + "\n" + longLine + "\r\n", blocks, blocks + "\n", spaced}) {
        SCOPED_TRACE(contents.size());
        file.expectUnchanged(contents, random());
    }
}

#ifndef _WIN32
TEST(KeptFiles, EveryByteOfTheFilesOfThisMachineStays) {
    namespace fs = std::filesystem;
    KeptFile file;
    std::size_t seed = 0;
    for (const char* folder : {"/usr/include", "/usr/share/doc", "/usr/share/perl5", "/etc", "/var/log", "/usr/bin"}) {
        std::error_code error;
        unsigned taken = 0;
        for (fs::recursive_directory_iterator it(folder, fs::directory_options::skip_permission_denied, error), end;
             it != end && taken < 170; it.increment(error)) {
            std::ifstream stream(it->path(), std::ios::binary);
            if (!it->is_regular_file(error) || it->file_size(error) > 300'000 || !stream) continue;
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            if (std::ranges::count(bytes, '\n') + std::ranges::count(bytes, '\r') > Limits().lastLoadedLine) continue;
            SCOPED_TRACE(it->path());
            file.expectUnchanged(bytes, seed += 7919);
            if (testing::Test::HasFailure()) return;
            ++taken;
        }
    }
}
#endif

// ---- editing -----------------------------------------------------------------------------------------------------

struct EditCase {
    const char* name;
    std::string before;
    void (*edit)(KeptFile& file);
    std::string after;
};

const EditCase kEdits[] = {
    {"a split line", "a\r\nbc\nd\r\n",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(1), CharColumn(1));
         f.press(kKeyEnter);
     },
     "a\r\nb\r\nc\nd\r\n"},
    {"Enter at a line's start", "a\nb\n",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(1), CharColumn(0));
         f.press(kKeyEnter);
     },
     "a\n\nb\n"},
    {"Enter behind a last line without an end", "a\nb",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(1), CharColumn(1));
         f.press(kKeyEnter);
     },
     "a\nb\n"},
    {"Enter behind a last line with an end", "a\nb\n",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(1), CharColumn(1));
         f.press(kKeyEnter);
     },
     "a\nb\n\n"},
    {"typing below the last line", "a\n",
     [](KeptFile& f) {
         f.press(kKeyDown);
         f.type("b");
     },
     "a\nb"},
    {"typing far below the last line", "a",
     [](KeptFile& f) {
         f.press(kKeyDown, 3);
         f.type("b");
     },
     "a\r\n\r\n\r\nb"},
    {"going below the last line", "a\r", [](KeptFile& f) { f.press(kKeyDown, 3); }, "a\r"},
    {"joined lines", "a\r\nb\nc\n",
     [](KeptFile& f) {
         f.press(kKeyEnd);
         f.press(kKeyDelete);
     },
     "ab\nc\n"},
    {"a joined last line", "a\nb",
     [](KeptFile& f) {
         f.press(kKeyEnd);
         f.press(kKeyDelete);
     },
     "ab"},
    {"Delete behind the last line", "a\nb\r\n",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(1), CharColumn(1));
         f.press(kKeyDelete);
     },
     "a\nb"},
    {"Delete behind a last line without an end", "a",
     [](KeptFile& f) {
         f.press(kKeyEnd);
         f.press(kKeyDelete);
     },
     "a"},
    {"a deleted stream", "ab\ncd\r\nef\r",
     [](KeptFile& f) {
         f.view_.goTo(LineIndex(0), CharColumn(1));
         f.press(kKeyDown, 2, true);
         f.press(kKeyDelete);
     },
     "af\r"},
    {"everything deleted", "a\n\n\n",
     [](KeptFile& f) {
         f.view_.selectAll();
         f.press(kKeyDelete);
     },
     ""},
    {"pasted lines", "a\nb\r\nc\n",
     [](KeptFile& f) {
         f.clipboard_.put("x\r\ny\r\n", MarkMode::Lines);
         f.view_.paste();
     },
     "x\ny\na\nb\r\nc\n"},
    {"a pasted stream", "ab",
     [](KeptFile& f) {
         f.clipboard_.put("x\r\ny\r\nz\r\n", MarkMode::Stream);
         f.press(kKeyRight);
         f.view_.paste();
     },
     "ax\r\ny\r\nzb"},
    {"a stream pasted beyond the last column", std::string(299, 'x'),
     [](KeptFile& f) {
         f.clipboard_.put("yyy\r\nz\r\n", MarkMode::Stream);
         f.press(kKeyEnd);
         f.view_.paste();
     },
     std::string(299, 'x') + "yyy\r\nz"},
    {"changed ends", "a\r\nb\nc\n\rd", [](KeptFile& f) { f.change(OtherLineEnd(f.style())); }, "a\nb\nc\n\nd"},
    {"ends changed from LF", "a\nb\n", [](KeptFile& f) { f.change(OtherLineEnd(f.style())); }, "a\r\nb\r\n"},
    {"ends changed before typing", "a\nb",
     [](KeptFile& f) {
         f.change(LineEnd::Cr);
         f.press(kKeyEnter);
     },
     "\ra\rb"},
    {"ends changed to those of another text", "a\nb\nc",
     [](KeptFile& f) {
         ExchangeText(f.document_,
                      {{"a", LineEnd::CrLf}, {"x", LineEnd::Lf}, {"y", LineEnd::Cr}, {"c", LineEnd::None}});
         f.view_.finish();
     },
     "a\r\nx\ny\rc"},
};

TEST(KeptFiles, EditsGiveTheEndsThatTheirUserExpects) {
    for (const EditCase& c : kEdits) {
        KeptFile file;
        file.load(c.before);
        const LineEnd common = file.style().common;
        c.edit(file);
        EXPECT_EQ(file.saved(), c.after) << c.name;
        int commands = 0;
        for (; !file.document_.history().isEmpty(); ++commands)
            file.view_.undo();
        EXPECT_EQ(file.saved(), c.before) << c.name << ", undone";
        EXPECT_EQ(file.style().common, common) << c.name << ", undone";
        EXPECT_FALSE(file.document_.isModified()) << c.name;
        for (; commands > 0; --commands)
            file.view_.redo();
        EXPECT_EQ(file.saved(), c.after) << c.name << ", done again";
    }
}

TEST(KeptFiles, TheCommonEndIsThatOfMostLines) {
    struct Case {
        std::string bytes;
        LineEnd common;
        bool isMixed;
    };
    const Case cases[] = {{"", LineEnd::CrLf, false},         {"a", LineEnd::CrLf, false},
                          {"a\nb\r\nc\n", LineEnd::Lf, true}, {"a\r\nb\n", LineEnd::CrLf, true},
                          {"a\rb\r", LineEnd::Cr, false},     {"a\nb", LineEnd::Lf, false}};
    for (const Case& c : cases) {
        KeptFile file;
        file.load(c.bytes);
        EXPECT_EQ(file.style().common, c.common) << c.bytes;
        EXPECT_EQ(file.style().isMixed, c.isMixed) << c.bytes;
        file.press(kKeyEnter);
        ASSERT_TRUE(file.document_.write());
        EXPECT_EQ(file.disk_.get("A.TXT"), std::string(BytesOf(c.common)) + c.bytes);
    }
}

// A document goes by the habit that it was read with.
TEST(KeptFiles, AChangedHabitIsForFilesThatAreReadFromThenOn) {
    KeptFile file;
    file.load("a\nb");
    file.options_.habits.keepFiles = false;
    EXPECT_EQ(file.saved(), "a\nb");
    file.load("a\nb");
    file.options_.habits.keepFiles = true;
    EXPECT_EQ(file.saved(), "a\r\nb\r\n");
    file.disk_.put("A.TXT", "a\nc");
    ASSERT_TRUE(ReadAnew(file.document_));
    EXPECT_EQ(file.saved(), "a\r\nc\r\n");
}

}  // namespace
}  // namespace vexa

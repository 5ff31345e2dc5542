// Opening the file that is named at the caret.
#include "shell/open_include.h"
#include "document/document_session.h"

#include <gtest/gtest.h>

#include "base/platform.h"
#include "language/name_at_caret.h"
#include "support/case_files.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

constexpr test::CaseFile kFiles[] = {
#include "shell_cases.inc"
};

CharColumn TakeCaret(std::string& line) {
    const std::size_t caret = line.find('|');
    line.erase(caret, 1);
    return CharColumn(static_cast<std::int32_t>(caret));
}

TEST(NameAtCaret, IsWhatTheLineNames) {
    for (const test::Cells& row : test::RowsOf(kFiles, "names_at_caret")) {
        std::string line = row.at(0);
        const CharColumn caret = TakeCaret(line);
        std::string shown;
        for (const NamedPlace& place : NamesAtCaret(line, caret))
            shown += (shown.empty() ? "" : ";") + place.name + (place.line ? " " + std::to_string(place.line) : "");
        EXPECT_EQ(shown, row.at(1)) << row.at(0);
    }
    EXPECT_TRUE(NamesAtCaret("a.c", CharColumn(4)).empty()) << "in the space behind the text";
}

class ShownFiles : public DocumentFrame {
  public:
    bool activateShowing(const std::string&, TextPosition) override { return false; }
    bool openWindow(const std::optional<std::string>& path, TextPosition at) override {
        opened = path.value_or("new") + " " + std::to_string(at.line.value + 1);
        return true;
    }
    void bringToFront() override {}
    void restoreIfMinimised() override {}

    std::string opened;
};

class OpenIncludeTest : public testing::Test, protected test::DocumentSession {
  protected:
    OpenIncludeTest() {
        for (const char* directory : {"src", "src\\sub", "work", "inc1", "inc 2"})
            disk_.makeDirectory(directory);
        platform::ChangeDirectory(disk_.path("work"));
        document_.newEmpty();
        document_.setName(disk_.path("src\\main.c"));
    }
    // What is opened for a line, from the disk on; else the status text.
    std::string open(std::string line) {
        const CharColumn caret = TakeCaret(line);
        document_.lines().put(document_.makeLine(line), 0);
        document_.setCurrentLine(LineIndex(0));
        document_.current().setColumn(caret);
        frame_.opened.clear();
        const bool opened = OpenInclude(document_, opening_, notices_);
        if (!opened) return notices_.lastStatus();
        EXPECT_EQ(frame_.opened.substr(0, disk_.path().size()), disk_.path());
        return frame_.opened.substr(disk_.path().size());
    }

    test::TestDisk disk_;
    ShownFiles frame_;
    FileOpening opening_{frame_, options_, notices_};
};

TEST_F(OpenIncludeTest, LooksBesideTheDocumentThenHereThenInTheVariable) {
    const test::EnvironmentSetting include("INCLUDE",
                                           ";" + disk_.path("inc1") + "; \"" + disk_.path("inc 2") + "\\\" ;;");
    const char* const name = "#include <a.h>|";
    EXPECT_EQ(open(name), "Unable to find the file 'a.h'.");
    for (const char* place : {"inc 2", "inc1", "work", "src"}) {
        disk_.put(std::string(place) + "\\a.h", "");
        EXPECT_EQ(open(name), "\\" + std::string(place) + "\\a.h 1");
    }
}

TEST_F(OpenIncludeTest, TakesPathsLinesAndTheSecondChoice) {
    disk_.put("src\\sub\\b.h", "");
    disk_.put("c.txt", "");
    EXPECT_EQ(open("#include \"sub/b.h\"|"), "\\src\\sub\\b.h 1");
    EXPECT_EQ(open("..\\c.t|xt:40: note"), "\\c.txt 40");
    EXPECT_EQ(open(disk_.path("c.txt") + "|(7)"), "\\c.txt 7");
    EXPECT_EQ(open("\"look at sub/b|.h\""), "\\src\\sub\\b.h 1") << "the text in quotes is no file";
}

TEST_F(OpenIncludeTest, TellsWhatItDoesNotFind) {
    EXPECT_EQ(open(" |"), "No file name at the cursor.");
    EXPECT_EQ(open("sub|"), "Unable to find the file 'sub'.") << "a directory";
    EXPECT_EQ(open("\\\\server\\share\\x.h|"), "Unable to find the file '\\\\server\\share\\x.h'.");
    EXPECT_EQ(open("#include \"" + std::string(280, 'x') + "\"|"),
              "Unable to find the file '" + std::string(280, 'x') + "'.");
    EXPECT_EQ(frame_.opened, "");
}

}  // namespace
}  // namespace vexa

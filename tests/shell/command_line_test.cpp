#include "shell/command_line.h"

#include <gtest/gtest.h>

#include "base/platform.h"
#include "shell/tool_request.h"
#include "support/case_files.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using Arguments = std::vector<std::string>;

constexpr test::CaseFile kFiles[] = {
#include "shell_cases.inc"
};

TEST(CommandLineText, IsCutAsTheRuntimeLibraryDoes) {
    for (const test::Cells& row : test::RowsOf(kFiles, "command_lines")) {
        const CommandLine line = ParseCommandLine(row.at(0));
        EXPECT_EQ(line.text, row.at(1)) << row.at(0);
        EXPECT_EQ(line.arguments, Arguments(row.begin() + 2, row.end())) << row.at(0);
    }
}

TEST(CommandLineText, OfThirtyTwoKilobytesIsCutWhole) {
    std::string whole = "vexa";
    for (int n = 0; n < 8000; ++n)
        whole += " a\"\"";
    EXPECT_EQ(ParseCommandLine(whole).arguments.size(), 8000u);
    const std::string backslashes(32000, '\\');
    EXPECT_EQ(ParseCommandLine("vexa " + backslashes + "\"").arguments, Arguments{backslashes.substr(16000)});
}

TEST(CommandLineText, HelpIsAskedForByOneArgumentAlone) {
    EXPECT_TRUE(AsksForHelp(Arguments{"/?"}));
    EXPECT_TRUE(AsksForHelp(Arguments{"-?"}));
    EXPECT_FALSE(AsksForHelp(Arguments{"-?", "a.c"}));
    EXPECT_FALSE(AsksForHelp(Arguments{"a.c"}));
    EXPECT_FALSE(AsksForHelp({}));
}

TEST(LineOption, IsFoundAnywhereInAnArgument) {
    for (const test::Cells& row : test::RowsOf(kFiles, "line_options"))
        EXPECT_EQ(ParseLineOption(row.at(0)), std::stoi(row.at(1))) << row.at(0);
    EXPECT_EQ(ParseLineOption("-" + std::string(40, 'l') + "1234567890"), 12345678) << "only 49 characters count";
    EXPECT_EQ(ParseLineOption("-" + std::string(60, 'L') + "5"), -1);
}

class CommandLineFiles : public testing::Test {
  protected:
    FileAtLine file(std::string_view name, int line) const { return {disk_.path(name), line}; }
    test::TestDisk disk_;
};

using Files = std::vector<FileAtLine>;

TEST_F(CommandLineFiles, EveryFileGetsTheLastLineNamed) {
    EXPECT_EQ(FilesOf(Arguments{"a.c", "b.c", "-l5"}), (Files{file("a.c", 5), file("b.c", 5)}));
    EXPECT_EQ(FilesOf(Arguments{"-L3", "a.c", "", "/l 9", "b.c"}), (Files{file("a.c", 9), file("b.c", 9)}));
    EXPECT_EQ(FilesOf(Arguments{"a.c"}), Files{file("a.c", 0)});
    EXPECT_EQ(FilesOf(Arguments{"-l5"}), Files{});
    EXPECT_EQ(FilesOf({}), Files{});
}

TEST_F(CommandLineFiles, AnExistingFileIsAFileAlsoWhenItLooksLikeALine) {
    disk_.put("my-l2.c", "");
    EXPECT_EQ(FilesOf(Arguments{"my-l2.c", "b.c", "-L7"}), (Files{file("my-l2.c", 7), file("b.c", 7)}));
    EXPECT_EQ(FilesOf(Arguments{"my-l3.c", "b.c"}), Files{file("b.c", 3)}) << "there is no such file";
    EXPECT_EQ(LineNamedBy("my-l2.c"), -1);
    const std::string shared = "\\\\server\\share\\a.c";
    EXPECT_EQ(FilesOf(Arguments{shared}), (Files{{shared, 0}}));
}

TEST_F(CommandLineFiles, WildcardsStandForNormalFilesAtTheirFirstLine) {
    disk_.makeDirectory("sub");
    for (const char* name : {"one.c", "two.c", "x.h", "sub\\three.c"})
        disk_.put(name, "");
    disk_.makeDirectory("dir.c");
    EXPECT_EQ(FilesOf(Arguments{"*.c", "x.h", "-l7"}), (Files{file("one.c", 0), file("two.c", 0), file("x.h", 7)}));
    EXPECT_EQ(FilesOf(Arguments{disk_.path("sub\\t*.?")}), Files{file("sub\\three.c", 0)});
    EXPECT_EQ(FilesOf(Arguments{"sub\\*.c"}), Files{file("three.c", 0)}) << "a directory without a drive is dropped";
    EXPECT_EQ(FilesOf(Arguments{"*.none"}), Files{});
}

std::string ShownOf(const std::optional<ToolRequest>& request, const std::string& folder) {
    if (!request) return "none";
    std::string shown = request->waits ? "wait" : "";
    for (const FileAtLine& at : request->files) {
        const std::string name = at.file.starts_with(folder) ? at.file.substr(folder.size()) : at.file;
        shown += (shown.empty() ? "" : "|") + name + ' ' + std::to_string(at.line) +
                 (at.column != 0 ? ' ' + std::to_string(at.column) : "");
    }
    return shown;
}

TEST_F(CommandLineFiles, FormsOfOtherProgramsAreToldFromTheGivenOnes) {
    disk_.makeDirectory("sub");
    for (const char* name : {"a.c", "sub\\b.c", "sub\\l2.c", "+7", "x-l5.c"})
        disk_.put(name, "");
    for (const test::Cells& row : test::RowsOf(kFiles, "tool_requests")) {
        std::string arguments = row.at(0);
        if (arguments.starts_with("DISK")) arguments.replace(0, 4, disk_.path());
        const auto request = ToolRequestOf(ParseCommandLine("vexa " + arguments).arguments);
        EXPECT_EQ(ShownOf(request, disk_.path("") + "\\"), row.at(1)) << row.at(0);
    }
}

}  // namespace
}  // namespace vexa

#include "shell/command_line.h"

#include <gtest/gtest.h>

#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLineText, IsCutAsTheRuntimeLibraryDoes) {
    struct Case {
        const char* whole;
        const char* text;
        Arguments arguments;
    };
    const Case cases[] = {
        {"vexa.exe", "", {}},
        {"", "", {}},
        {R"("C:\My Dir\vexa.exe"   a.c)", "a.c", {"a.c"}},
        {R"(C:\"My Dir"\vexa.exe a.c b.c)", "a.c b.c", {"a.c", "b.c"}},
        {"vexa \ta.c\t-L20 ", "a.c\t-L20", {"a.c", "-L20"}},
        {R"(vexa "a b.c" c"d e"f)", R"("a b.c" c"d e"f)", {"a b.c", "cd ef"}},
        {R"(vexa "" x)", R"("" x)", {"", "x"}},
        {R"(vexa C:\dir\ "C:\dir\\" \\srv\x)",
         R"(C:\dir\ "C:\dir\\" \\srv\x)",
         {R"(C:\dir\)", R"(C:\dir\)", R"(\\srv\x)"}},
        {R"(vexa a\"b "c\"d" e\\\"f)", R"(a\"b "c\"d" e\\\"f)", {"a\"b", "c\"d", "e\\\"f"}},
        {R"(vexa "a""b" c)", R"("a""b" c)", {"a\"b", "c"}},
        {R"(vexa "open to the end)", R"("open to the end)", {"open to the end"}},
        {R"("vexa never closed a.c)", "", {}},
        {"vexa *.c ?.h", "*.c ?.h", {"*.c", "?.h"}},
    };
    for (const Case& c : cases) {
        const CommandLine line = ParseCommandLine(c.whole);
        EXPECT_EQ(line.text, c.text) << c.whole;
        EXPECT_EQ(line.arguments, c.arguments) << c.whole;
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
    const std::pair<std::string, int> cases[] = {
        {"-l120", 120},
        {"/L 7", 7},
        {"--ll3", 3},
        {"/-Ll0012x9", 12},
        {"foo-l5.c", 5},
        {"-l0", 0},
        {"-L99999999999", 2147483647},
        {"-" + std::string(40, 'l') + "1234567890", 12345678},  // only 49 characters count
        {"l20", -1},
        {"-l", -1},
        {"-lx20", -1},
        {"-l\t20", -1},
        {"a.c", -1},
        {"", -1},
        {"-" + std::string(60, 'L') + "5", -1},
    };
    for (const auto& [argument, line] : cases)
        EXPECT_EQ(ParseLineOption(argument), line) << argument;
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

}  // namespace
}  // namespace vexa

// The file of the tools, and what the dialogs of programs give.
#include <gtest/gtest.h>

#include "base/ascii.h"
#include "base/platform.h"
#include "external/program_kind.h"
#include "external/run_program_model.h"
#include "external/tools_model.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

std::string Field(const std::string& text, std::size_t size) {
    return text + std::string(size - text.size(), '\0');
}

ProgramRequest Tool(const std::string& name) {
    ProgramRequest tool("C:\\A.EXE", "-x", "C:\\");
    tool.kind = ProgramKind::Windows;
    tool.showMode = ShowMode::Maximised;
    tool.setMenuText(name);
    return tool;
}

TEST(ToolFiles, AreOfTheGivenLayout) {
    const std::string bytes = EncodeTools({Tool("First")});
    EXPECT_EQ(bytes, std::string("\1\1\0\1\0\3\0", 7) + Field("C:\\A.EXE", 256) + Field("First", 41) +
                         Field("-x", 256) + Field("C:\\", 256));
    EXPECT_EQ(DecodeTools(bytes), Tools{Tool("First")});
    ProgramRequest shell = Tool("Shell");
    shell.kind = ProgramKind::Interpreter;
    EXPECT_EQ(DecodeTools(EncodeTools({shell})), Tools{shell});
}

TEST(ToolFiles, OfOtherBytesGiveTheToolsThatAreWhole) {
    EXPECT_EQ(DecodeTools(""), Tools{});
    const Tools two{Tool("a"), Tool("b")};
    const std::string bytes = EncodeTools(two);
    EXPECT_EQ(DecodeTools(bytes.substr(0, bytes.size() - 1)), Tools{Tool("a")});
    EXPECT_EQ(DecodeTools("\5" + bytes.substr(1)), two) << "the count is too large";
    EXPECT_EQ(DecodeTools("\1" + bytes.substr(1)), Tools{Tool("a")}) << "the count is too small";
    const std::string twenty = EncodeTools(Tools(20, Tool("a")));
    EXPECT_EQ(DecodeTools(twenty).size(), kMostTools);
    const Tools wild = DecodeTools("\1" + std::string(815, '\xFF'));
    EXPECT_EQ(wild[0].kind, ProgramKind::Windows);
    EXPECT_EQ(wild[0].program().size(), 255u);
    EXPECT_EQ(wild[0].menuText().size(), 40u);
}

TEST(ToolMenus, SkipTheKeysOfOtherCommands) {
    EXPECT_EQ(ToolMenuText(Tool("a"), 3), "a\tShift+F4");
    EXPECT_EQ(ToolMenuText(Tool("a"), 4), "a\tShift+F7");
    EXPECT_EQ(ToolMenuText(Tool("a"), 14), "a\tShift+F17");
}

TEST(RunProgramDialogs, GiveTheRequestItsArguments) {
    const test::TestDisk disk;
    HistoryList directories(disk.path(), RunProgramModel::kDirectoryHistoryFile);
    HistoryList arguments(disk.path(), RunProgramModel::kArgumentHistoryFile);
    ProgramRequest request("COMMAND.COM");
    request.kind = ProgramKind::Interpreter;
    RunProgramModel model(request, directories, arguments);
    EXPECT_EQ(model.directory, platform::CurrentDirectory());
    EXPECT_FALSE(model.canRun());
    model.arguments = "dir";
    model.directory = "Sub";
    EXPECT_TRUE(model.canRun());
    model.run();
    EXPECT_EQ(request.arguments(), "dir");
    EXPECT_EQ(request.directory(), "Sub");
    EXPECT_EQ(directories.entries().size() + arguments.entries().size(), 2u);
    ProgramRequest tool = request;
    tool.kind = ProgramKind::Windows;
    EXPECT_TRUE(RunProgramModel(tool, directories, arguments).canRun());
}

}  // namespace
}  // namespace vexa

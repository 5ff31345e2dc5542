// The tools of the menu, their file and their dialogs.
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

std::string ExeHeader(int relocations) {
    std::string header(64, '\0');
    header.replace(0, 2, "MZ");
    header[24] = static_cast<char>(relocations);
    return header;
}

TEST(ProgramKinds, AreReadFromTheFile) {
    const test::TestDisk disk;
    const struct {
        const char* name;
        std::string bytes;
        ProgramKind kind;
    } cases[] = {
        {"a.exe", ExeHeader(63), ProgramKind::Dos},
        {"b.exe", ExeHeader(64), ProgramKind::Windows},
        {"c.com", "\xE9", ProgramKind::Dos},
        {"d.bat", "", ProgramKind::Dos},
        {"e.Cmd", "", ProgramKind::Dos},
        {"f.txt", "", ProgramKind::Windows},
        {"g.com", ExeHeader(64), ProgramKind::Windows},
        {"h.exe", "MZ", ProgramKind::Dos},
    };
    for (const auto& row : cases) {
        disk.put(row.name, row.bytes);
        EXPECT_EQ(KindOfProgram(disk.path(row.name)), row.kind) << row.name;
    }
    EXPECT_EQ(KindOfProgram(disk.path("none.exe")), ProgramKind::Windows);
}

struct ToolsDialog : testing::Test {
    ToolsDialog() {
        disk.makeDirectory("Bin");
        disk.put("Bin\\Prog.exe", ExeHeader(64));
        disk.put("here.bat", "");
        list.LoadTools();
    }

    ToolsModel::Outcome add(const std::string& name, const std::string& program = "prog") {
        model.kind = ProgramKind::Dos;
        model.program = program;
        model.menuText = name;
        return model.add();
    }
    std::string upper(std::string_view name) const {
        std::string path = disk.path(name);
        for (char& c : path)
            c = UpperAscii(c);
        return path;
    }

    using Outcome = ToolsModel::Outcome;
    test::TestDisk disk;
    test::RecordingNotices notices;
    Directories directories{disk.programPath()};
    ToolList list{directories};
    ToolsModel model{list, notices, ";" + disk.path("none") + ";\"" + disk.path("Bin") + "\""};
};

TEST_F(ToolsDialog, BeginsWithANewTool) {
    EXPECT_EQ(model.kind, ProgramKind::Windows);
    EXPECT_EQ(model.showMode, ShowMode::Normal);
    EXPECT_FALSE(model.capture || model.askForArguments || model.canAdd() || model.canUpdate() || model.canDelete());
}

TEST_F(ToolsDialog, FindsProgramsInThePathAndNowhereElse) {
    EXPECT_EQ(add("one"), Outcome::Changed);
    EXPECT_EQ(list.tools()[0].program(), upper("Bin\\Prog.exe"));
    EXPECT_EQ(list.tools()[0].kind, ProgramKind::Windows) << "the file says so";
    EXPECT_EQ(add("two", "here.bat"), Outcome::StayAtProgram) << "it is in the current directory";
    EXPECT_EQ(notices.boxes.back().text, "File not found.");
    EXPECT_EQ(add("two", disk.path("here.bat")), Outcome::Changed);
    EXPECT_EQ(add("two", disk.path("Bin")), Outcome::StayAtProgram) << "a directory";
    model.kind = ProgramKind::Interpreter;
    model.program = "anything";
    model.menuText = "line";
    EXPECT_EQ(model.add(), Outcome::Changed);
    EXPECT_EQ(list.tools()[2].program(), "anything");
}

TEST_F(ToolsDialog, KeepsEachChangeInTheFile) {
    add("one");
    model.directory = disk.path("bin");
    EXPECT_EQ(add("two"), Outcome::Changed);
    EXPECT_EQ(list.tools()[1].directory(), upper("bin"));
    model.directory = disk.path("nodir");
    EXPECT_EQ(add("three"), Outcome::StayAtDirectory);
    EXPECT_EQ(notices.boxes.back().text, "The directory specified does not exist.");
    model.select(0);
    model.menuText = "uno";
    EXPECT_EQ(model.update(), Outcome::Changed);
    notices.answers = {BoxAnswer::No, BoxAnswer::Yes};
    EXPECT_EQ(model.remove(), Outcome::Nothing);
    EXPECT_EQ(notices.boxes.back(),
              (test::BoxNotice{"Are you sure you want to delete the 'uno' tool?", "Vexa 95", BoxButtons::YesNo}));
    ToolList again(directories);
    again.LoadTools();
    EXPECT_EQ(again.tools(), list.tools());
    EXPECT_EQ(model.menuTexts(), (std::vector<std::string>{"uno", "two"}));
    EXPECT_EQ(model.remove(), Outcome::Changed);
    EXPECT_FALSE(model.canDelete());
    again.LoadTools();
    EXPECT_EQ(again.tools(), list.tools());
}

TEST_F(ToolsDialog, AsksBeforeAToolOfTheSameNameIsReplaced) {
    add("one");
    add("two");
    model.capture = true;
    notices.answers = {BoxAnswer::No, BoxAnswer::Yes, BoxAnswer::Yes};
    EXPECT_EQ(add("one"), Outcome::Nothing);
    EXPECT_EQ(add("one"), Outcome::Changed);
    EXPECT_TRUE(list.tools()[0].capture);
    model.select(1);
    model.menuText = "one";
    EXPECT_EQ(model.update(), Outcome::Changed);
    EXPECT_EQ(model.menuTexts(), std::vector<std::string>{"one"});
    EXPECT_EQ(notices.boxes[0].text, "The tool 'one' already exists. Do you want to replace\n the old tool?");
}

TEST_F(ToolsDialog, RefusesTheSixteenthTool) {
    for (std::size_t i = 0; i < kMostTools; ++i)
        EXPECT_EQ(add("t" + std::to_string(i)), Outcome::Changed);
    EXPECT_EQ(add("more"), Outcome::Nothing);
    EXPECT_EQ(notices.boxes.back().text, "Maximum tool count has been reached.");
    EXPECT_EQ(list.tools().size(), kMostTools);
}

TEST_F(ToolsDialog, AFileThatCannotBeWrittenLeavesTheListAsItWas) {
    add("one");
    disk.setReadOnly("vConfig\\VexaTool.INF", true);
    EXPECT_EQ(add("two"), Outcome::Nothing);
    EXPECT_EQ(list.tools().size(), 1u);
    EXPECT_TRUE(notices.boxes.back().text.starts_with("The program was unable to write"));
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

// Command lines, and programs that really run.
#include <gtest/gtest.h>

#include "external/program_command.h"
#include "external_session.h"

namespace vexa {
namespace {

ProgramRequest Request(ProgramKind kind, const std::string& arguments, bool capture = true) {
    ProgramRequest request("PROG", arguments, "C:\\");
    request.kind = kind;
    request.capture = capture;
    return request;
}

struct CommandCase {
    ProgramRequest request;
    bool captured;
    const char* line;
};

TEST(ProgramCommands, AreMadeOfTheRequest) {
    const CommandCase cases[] = {
        {Request(ProgramKind::Interpreter, "dir"), false, "C:\\V.PIF /C dir "},
        {Request(ProgramKind::Interpreter, ""), false, "C:\\V.PIF"},
        {Request(ProgramKind::Interpreter, ""), true, "C:\\V.PIF > C:\\P.dat"},
        {Request(ProgramKind::Dos, "a b"), true, "C:\\V.PIF /C PROG a b  > C:\\P.dat"},
        {Request(ProgramKind::Windows, "a"), false, "PROG a "},
        {Request(ProgramKind::Windows, "a"), true, "PROG a  > C:\\P.dat"},
        {Request(ProgramKind::Interpreter, "dir 2>&1 "), true, "C:\\V.PIF /C dir  > C:\\P.dat 2>&1"},
        {Request(ProgramKind::Interpreter, "dir 2>&1"), false, "C:\\V.PIF /C dir 2>&1 "},
        {Request(ProgramKind::Interpreter, "dir x2>&1"), true, "C:\\V.PIF /C dir x2>&1  > C:\\P.dat"},
    };
    for (const CommandCase& row : cases)
        EXPECT_EQ(CommandLineOf(row.request, "C:\\V.PIF", row.captured ? "C:\\P.dat" : ""), row.line);
    EXPECT_EQ(CommandLineOf(Request(ProgramKind::Interpreter, "dir"), "C:\\NO DIR\\V.PIF", "C:\\R&D\\P.dat"),
              "\"C:\\NO DIR\\V.PIF\" /C dir  > \"C:\\R&D\\P.dat\"");
}

TEST(ProgramCommands, APathWithBlanksNeverStartsAnotherProgram) {
    const test::TestDisk disk;
    disk.makeDirectory("My Tools");
    disk.put("My Tools\\A.EXE", "");
    const std::string inCommand = PathInCommand(disk.path("My Tools\\A.EXE"));
    EXPECT_TRUE(inCommand.find(' ') == std::string::npos || inCommand.front() == '"') << inCommand;
    ProgramRequest request(disk.path("My Tools\\A.EXE"));
    request.kind = ProgramKind::Windows;
    EXPECT_EQ(CommandLineOf(request, {}, {}), inCommand + "  ");
}

TEST(ProgramCommands, ADescriptionBeginsAtTheNameOfTheProgram) {
    EXPECT_EQ(ProgramRequest("C:\\BIN\\A.EXE", "x y").description(), "\\A.EXE x y");
    EXPECT_EQ(CommandLineRequest().description(), "COMMAND.COM ");
    EXPECT_EQ(ProgramRequest(std::string(300, 'x')).program().size(), 255u);
}

struct Programs : testing::Test, test::ExternalSession {
    bool finish() {
        return test::WaitFor([this] {
            programs.Tick();
            return timer.interval == 0;
        });
    }
    void run(const std::string& command, const std::string& directory = {}) {
        ProgramRequest request = CommandLineRequest();
        request.setArguments(command);
        if (!directory.empty()) request.setDirectory(directory);
        programs.RunCommandLine(request);
    }
    std::vector<std::string> printed() const {
        std::vector<std::string> rows = test::RowsOf(output);
        rows.erase(rows.begin(), rows.begin() + 5);
        for (std::string& row : rows)
            row.erase(row.find_last_not_of(' ') + 1);
        return rows;
    }

    CapturedPrograms programs{directories, output, timer, notices};
};

using Texts = std::vector<std::string>;

TEST_F(Programs, OutputAndErrorsOfACommandLineAreShown) {
    run("echo one&& echo two >&2");
    EXPECT_EQ(timer.interval, 350);
    EXPECT_EQ(notices.lastStatus(), "COMMAND.COM echo one&& echo two >&2");
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Command has completed.");
    run("echo three");
    ASSERT_TRUE(finish());
    EXPECT_EQ(printed(), (Texts{"three", "", "Command has completed."}));
    run("echo four >&2");
    ASSERT_TRUE(finish());
    EXPECT_EQ(printed(), (Texts{"four", "", "Command has completed."}));
    EXPECT_EQ(platform::EnvironmentValue("VEXA_STDERR"), "");
}

TEST_F(Programs, AProgramRunsInItsDirectoryAndTheEditorStaysInItsOwn) {
    disk.makeDirectory("Sub");
    const std::string before = platform::CurrentDirectory();
    run("echo x > here.txt 2>&1", "Sub");
    ASSERT_TRUE(finish());
    EXPECT_EQ(platform::CurrentDirectory(), before);
    disk.put("Sub\\a.h", "");
    disk.put("VexaPip.dat", "a.h\n");
    run("echo a.h", "Sub");
    ASSERT_TRUE(finish());
    output.selectRow(5);
    output.activateRow();
    ASSERT_EQ(opener.opened.size(), 1u);
    EXPECT_EQ(opener.opened[0].path, disk.path("Sub\\a.h")) << "the directory is an absolute one by now";
}

TEST_F(Programs, ASecondCommandLineIsRefusedWhileOneRuns) {
    run("echo one");
    run("echo two");
    EXPECT_EQ(notices.lastStatus(), "Spawn currently active, please wait.");
    ASSERT_TRUE(finish());
    EXPECT_EQ(printed(), (Texts{"one", "", "Command has completed."}));
}

TEST_F(Programs, WhatCannotStartClearsTheStatusLine) {
    run("echo x", disk.path("NoDir"));
    EXPECT_EQ(timer.interval, 0);
    EXPECT_EQ(notices.lastStatus(), "");
    EXPECT_EQ(printed(), Texts{""});
    ASSERT_TRUE(platform::RemoveFile(disk.path("VexaDOS.PIF")));
    run("echo x");
    EXPECT_EQ(timer.interval, 0);
    EXPECT_EQ(notices.lastStatus(), "");
}

TEST_F(Programs, ARunnerTellsWhyAStartFailed) {
    ProcessRunner runner(directories, "Test2.dat");
    EXPECT_FALSE(runner.Run(Request(ProgramKind::Windows, "", false)));
    EXPECT_EQ(runner.LastError(), SpawnResult::FileNotFound);
    EXPECT_EQ(SpawnText(runner.LastError()), "File not found.");
    EXPECT_EQ(SpawnText(static_cast<SpawnResult>(8)), "Spawn Error.");
    EXPECT_TRUE(runner.IsIdle());
}

TEST_F(Programs, OldOutputIsNeverTakenForNew) {
    disk.put("VexaPip.dat", "old\n");
    disk.setReadOnly("VexaPip.dat", true);
    run("echo x");
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Can't open error file '" + disk.path("VexaPip.dat") + "'.");
    EXPECT_EQ(printed(), Texts{});
    disk.setReadOnly("VexaPip.dat", false);
#ifndef _WIN32  // there a file that is written to cannot be removed
    notices.statuses.clear();
    run("rm " + disk.path("VexaPip.dat"));  // a program that takes its own output away
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Can't open error file '" + disk.path("VexaPip.dat") + "'.");
#endif
}

TEST_F(Programs, AToolWithoutCaptureIsStartedAndForgotten) {
    ProgramRequest tool = CommandLineRequest();
    tool.setArguments("echo x > made.txt");
    tool.capture = false;
    programs.RunTool(tool);
    EXPECT_EQ(timer.interval, 0);
    EXPECT_TRUE(test::WaitFor([this] { return disk.has("made.txt"); }));
    EXPECT_EQ(output.rowCount(), 0u);
}

}  // namespace
}  // namespace vexa

// Command lines of programs.
#include <gtest/gtest.h>

#include "base/directories.h"
#include "external/captured_programs.h"
#include "external/process_runner.h"
#include "external/program_command.h"
#include "support/test_disk.h"

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

TEST(ProgramRunners, TellWhyAStartFailed) {
    const test::TestDisk disk;
    const Directories directories(disk.programPath());
    ProcessRunner runner(directories, "Test2.dat");
    EXPECT_FALSE(runner.Run(Request(ProgramKind::Windows, "", false)));
    EXPECT_EQ(runner.LastError(), SpawnResult::FileNotFound);
    EXPECT_EQ(SpawnText(runner.LastError()), "File not found.");
    EXPECT_EQ(SpawnText(static_cast<SpawnResult>(8)), "Spawn Error.");
    EXPECT_TRUE(runner.IsIdle());
}

}  // namespace
}  // namespace vexa

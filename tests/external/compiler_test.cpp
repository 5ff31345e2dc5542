// Setting a compiler up, and compilations that really run.
#include <gtest/gtest.h>

#include "external/compiler.h"
#include "external/compiler_setup_model.h"
#include "external_session.h"

namespace vexa {
namespace {

struct SampleCase {
    const char* text;
    const char* format;  // null where the text is refused
    const char* fileName = "";
};

TEST(CompilerSetups, TakeSampleCommandsApart) {
    const SampleCase cases[] = {
        {"BCC -ml -c SAMPLE.CPP -v", "BCC -ml -c %s -v", "SAMPLE.CPP"},
        {"cc SAMPLE.CPPX", "cc %s", "SAMPLE.CPP"},
        {"cc SAMPLE.C -v", "cc %s -v", "SAMPLE.C"},
        {"cc Sample -o x.y", "cc %s -o x.y", "Sample"},
        {"cc \"sample.c\" -v", "cc \"%s\" -v", "sample.c"},
        {"sample.c", "%s", "sample.c"},
        {"cc main.c", nullptr},
        {"", nullptr},
    };
    for (const SampleCase& row : cases) {
        const std::optional<SampleCommand> parsed = ParseSampleCommand(row.text);
        ASSERT_EQ(parsed.has_value(), row.format != nullptr) << row.text;
        if (!parsed) continue;
        EXPECT_EQ(parsed->format, row.format);
        EXPECT_EQ(parsed->fileName, row.fileName);
    }
    EXPECT_EQ(ExpandCommand("cc %s -D%s 5%", "a.c"), "cc a.c -D%s 5%");
}

TEST(CompilerSetups, ComeBackFromTheSettings) {
    const test::TestDisk disk;
    ConfigStore store(disk.path("VEXA.INI"));
    CompilerSetup setup;
    setup.Load(store);
    EXPECT_EQ(setup.command(), "BCC +c:\\vexa\\vexa.cfg -c %s");
    EXPECT_EQ(setup.display, ShowMode::MinimisedInactive);
    setup.setCommand({"\"C:\\my cc\" \"%s\"", "SAMPLE.C"});
    setup.setRunFile("RUN.BAT");
    setup.debug = true;
    setup.usesBatchFile = false;
    setup.display = ShowMode::Normal;
    setup.Save(store);
    EXPECT_EQ(disk.get("VEXA.INI"),
              "[Compiler]\r\nCommand=\"\"C:\\my cc\" \"%s\"\"\r\nFileName=SAMPLE.C\r\nRunFile=RUN.BAT\r\nDebug=YES\r\n"
              "Wait=YES\r\nMode=Other\r\nDisplay=1\r\n");
    CompilerSetup again;
    again.Load(store);
    EXPECT_EQ(again.command(), setup.command());
    EXPECT_EQ(again.expandedCommand(), "\"C:\\my cc\" \"sample.c\"");
    EXPECT_TRUE(again.debug);
    EXPECT_FALSE(again.usesBatchFile);
}

struct SetupDialog : testing::Test {
    using Outcome = CompilerSetupModel::Outcome;
    test::TestDisk disk;
    test::RecordingNotices notices;
    CompilerSetup setup;
    CompilerSetupModel model{setup};
};

TEST_F(SetupDialog, TestsAndTakesTheCommand) {
    EXPECT_EQ(model.command, "BCC +c:\\vexa\\vexa.cfg -c sample.cpp");
    model.command = "gcc Sample.C";
    model.test(notices);
    EXPECT_EQ(notices.boxes.back(), (test::BoxNotice{"gcc sample.c", "Command Line OK", BoxButtons::Ok}));
    model.command = "gcc";
    model.test(notices);
    EXPECT_EQ(notices.boxes.back().text, "Command line format error! Refer to the online help for more details.");
    EXPECT_EQ(model.update(notices), Outcome::StayAtCommand);
    EXPECT_EQ(notices.boxes.back(), (test::BoxNotice{"Bad command line supplied.", "Vexa Error", BoxButtons::Ok}));
    model.command = "gcc Sample.C";
    model.debug = true;
    EXPECT_EQ(model.update(notices), Outcome::Close);
    EXPECT_EQ(setup.command(), "gcc %s");
    EXPECT_EQ(setup.display, ShowMode::Maximised) << "the window that waits is to be seen";
}

TEST_F(SetupDialog, AsksWhereTheRunFileIs) {
    EXPECT_EQ(model.runFile, "VexaCC.BAT");
    model.setUsesBatchFile(false);
    EXPECT_EQ(model.runFile, "");
    EXPECT_TRUE(model.runFileEnabled() && !model.commandEnabled());
    model.runFile = "run.bat";
    notices.answers = {BoxAnswer::No, BoxAnswer::Yes};
    EXPECT_EQ(model.update(notices), Outcome::StayAtRunFile);
    EXPECT_TRUE(setup.usesBatchFile);
    EXPECT_EQ(model.update(notices), Outcome::Close);
    EXPECT_EQ(setup.runFile(), "RUN.BAT");
    EXPECT_EQ(setup.command(), CompilerSetup().command());
}

CompilerSetup SetupFor(const std::string& format) {
    CompilerSetup setup;
    setup.setCommand({format, "SAMPLE.C"});
    return setup;
}

TEST(CompileJobs, NameFilesByTheDocument) {
    const CompileJob job("C:\\SRC\\Main.CPP", SetupFor("cc %s"));
    EXPECT_EQ(job.errorPath(), "C:\\SRC\\main.err");
    EXPECT_EQ(job.batchPath, "C:\\SRC\\VexaCC.BAT");
    EXPECT_EQ(job.batchText, "@echo off \r\ncc main.cpp > main.err\r\n");
    EXPECT_EQ(job.shownCommand, "cc main.cpp");
    EXPECT_EQ(CompileJob("C:\\MAKEFILE", SetupFor("cc %s")).errorPath(), "C:\\makefile.err");
    EXPECT_TRUE(CompileJob("C:\\a.ERR", SetupFor("cc %s")).errorFileIsDocument());
    EXPECT_TRUE(CompileJob("C:\\vexacc.bat", SetupFor("cc %s")).batchFileIsDocument());
}

TEST(CompileJobs, QuoteNamesThatTheInterpreterWouldTakeApart) {
    const CompileJob job("C:\\a & 5%.c", SetupFor("cc %s 2>&1"));
    EXPECT_EQ(job.batchText, "@echo off \r\ncc \"a & 5%%.c\" > \"a & 5%%.err\" 2>&1\r\n");
    EXPECT_EQ(job.shownCommand, "cc \"a & 5%.c\" 2>&1");
}

TEST(CompileJobs, GiveTheRunFileThreeNames) {
    CompilerSetup setup = SetupFor("cc %s");
    setup.usesBatchFile = false;
    setup.setRunFile("RUN.BAT");
    const CompileJob job("C:\\A.B.C", setup);
    EXPECT_EQ(job.shownCommand, "RUN.BAT a.b.c a.b.err a.b");
    EXPECT_EQ(job.batchPath, "");
}

struct Compiling : testing::Test, test::ExternalSession {
    Compiling() { disk.put("Main.c", "int main() { return 0 }\n"); }

    bool finish() {
        return test::WaitFor([this] {
            compiler.Tick();
            return !compiler.IsActive();
        });
    }
    void use(const std::string& format) { setup.setCommand({format, "SAMPLE.C"}); }

    CompilerSetup setup;
    test::FakeDocument document{disk.path("Main.c")};
    Compiler compiler{setup, directories, messages, timer, notices};
};

TEST_F(Compiling, ErrorsOfBothOutputsEndInTheMessageWindow) {
    use("echo %s:12: warning: a");
    document.modified = true;
    compiler.Compile(document);
    EXPECT_EQ(document.saves, 1);
    EXPECT_EQ(timer.interval, 400);
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Compilation completed with warnings.");
    use("echo %s:3: error: b >&2");
    compiler.Compile(document);
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Compilation completed with errors.");
    messages.NextError();
    EXPECT_EQ(document.caretLine, 2);
    EXPECT_EQ(timer.interval, 0);
}

TEST_F(Compiling, ASecondCompilationTouchesNothing) {
    use("echo %s:3: error: b");
    compiler.Compile(document);
    const std::size_t rows = messages.rowCount();
    test::FakeDocument other(disk.path("Other.c"));
    compiler.Compile(other);
    EXPECT_EQ(notices.lastStatus(), "Spawn currently active, please wait.");
    EXPECT_EQ(messages.rowCount(), rows);
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Compilation completed with errors.");
}

TEST_F(Compiling, RefusalsAreToldAndStartNothing) {
    document.modified = true;
    document.canSave = false;
    compiler.Compile(document);
    EXPECT_EQ(notices.lastStatus(),
              "Unable to update the '" + document.path() + "' file. This file is probably read only!");
    document.modified = false;
    disk.makeDirectory("VexaCC.BAT");
    compiler.Compile(document);
    EXPECT_EQ(notices.lastStatus(), "Can't create batch file '" + disk.path("VexaCC.BAT") + "'.");
    disk.makeDirectory("main.err");
    compiler.Compile(document);
    EXPECT_EQ(notices.lastStatus(), "Can't open error file '" + disk.path("main.err") + "'.");
    disk.put("x.err", "precious");
    test::FakeDocument errors(disk.path("x.err"));
    compiler.Compile(errors);
    EXPECT_EQ(disk.get("x.err"), "precious");
    EXPECT_FALSE(compiler.IsActive());
}

TEST_F(Compiling, ACompilerThatWritesNoErrorFileSaysSo) {
    setup.usesBatchFile = false;
    setup.setRunFile("echo");
    compiler.Compile(document);
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), "Compilation completed successfully.");
    EXPECT_EQ(messages.rowText(5), "Can't open error file '" + disk.path("main.err") + "'.");
}

TEST_F(Compiling, AClosedDocumentIsForgottenAndItsBatchFileRemoved) {
    use("echo %s:3: error: b");
    compiler.Compile(document);
    const std::string atStart = notices.lastStatus();
    compiler.OnDocumentClosed(document);
    EXPECT_FALSE(disk.has("VexaCC.BAT"));
    ASSERT_TRUE(finish());
    EXPECT_EQ(notices.lastStatus(), atStart);
    setup.debug = true;
    compiler.Compile(document);
    EXPECT_EQ(disk.get("VexaCC.BAT"), "echo main.c:3: error: b > main.err\r\npause\r\n");
    compiler.OnDocumentClosed(document);
    EXPECT_TRUE(disk.has("VexaCC.BAT"));
}

TEST_F(Compiling, TheEditorMayEndWhileOneRuns) {
    use("echo %s:3: error: b");
    {
        Compiler ended(setup, directories, messages, timer, notices);
        ended.Compile(document);
        EXPECT_TRUE(ended.IsActive());
    }
    EXPECT_TRUE(test::WaitFor([this] { return disk.has("main.err"); }));
}

}  // namespace
}  // namespace vexa

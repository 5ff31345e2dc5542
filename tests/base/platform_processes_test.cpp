// What the platform promises about the programs that it starts, held to on every platform.
#include <gtest/gtest.h>

#include "base/platform.h"
#include "support/test_disk.h"
#include "support/test_interpreter.h"

namespace vexa::platform {
namespace {

class PlatformProcesses : public testing::Test {
  protected:
    void SetUp() override { test::PutInterpreter(disk); }

    StartedProcess start(const std::string& command) const {
        return StartProcess('"' + disk.path("VexaDOS.PIF") + "\" /C " + command, "Test", 0);
    }
    std::optional<std::uint32_t> exitCode(const std::string& command) const {
        const StartedProcess started = start(command);
        EXPECT_EQ(started.result, StartResult::Started);
        std::optional<std::uint32_t> code;
        EXPECT_TRUE(test::WaitFor([&] { return (code = ExitCodeOf(started.process)).has_value(); }));
        CloseProcess(started.process);
        return code;
    }

    test::TestDisk disk;
};

// A host's program ends with a byte.
TEST_F(PlatformProcesses, AProgramThatHasEndedHasItsExitCode) {
    EXPECT_EQ(exitCode("exit 0"), 0u);
    EXPECT_EQ(exitCode("exit 7"), 7u);
#ifdef _WIN32
    EXPECT_EQ(exitCode("exit 259"), 259u) << "the number that stands for one that runs";
#endif
}

TEST_F(PlatformProcesses, AProgramRunsInTheCurrentDirectoryWithTheEnvironment) {
    disk.makeDirectory("Sub");
    ASSERT_TRUE(ChangeDirectory(disk.path("Sub")));
    SetEnvironmentValue("VEXA_TEST", "value");
    EXPECT_EQ(EnvironmentValue("VEXA_TEST"), "value");
#ifdef _WIN32
    exitCode("echo %VEXA_TEST%> out.txt");
#else
    exitCode("echo $VEXA_TEST > out.txt");
#endif
    SetEnvironmentValue("VEXA_TEST", "");
    EXPECT_EQ(EnvironmentValue("VEXA_TEST"), "");
    EXPECT_TRUE(disk.get("Sub\\out.txt").starts_with("value"));
}

TEST_F(PlatformProcesses, AStartTellsWhatIsMissing) {
    EXPECT_EQ(StartProcess(disk.path("NONE.EXE") + " a", "Test", 0).result, StartResult::FileNotFound);
    const StartResult noDirectory = StartProcess(disk.path("NODIR\\NONE.EXE"), "Test", 0).result;
    EXPECT_TRUE(noDirectory == StartResult::PathNotFound || noDirectory == StartResult::FileNotFound) << "Wine's";
    EXPECT_EQ(StartProcess(disk.path("NONE.EXE"), "Test", 0).process, kNoProcess);
}

TEST_F(PlatformProcesses, OnlyWhatExistsHasAShortPath) {
    EXPECT_FALSE(ShortPath(disk.path("VexaDOS.PIF")).empty());
    EXPECT_EQ(ShortPath(disk.path("NONE.EXE")), "");
}

}  // namespace
}  // namespace vexa::platform

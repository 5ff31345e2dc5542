#include "shell/hand_off.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/strings.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"
#ifndef _WIN32
#include "base/platform/host/sandbox.h"
#endif

namespace vexa {
namespace {

using Arguments = std::vector<std::string>;

TEST(ShouldHandOffTest, OneFileOrOneFileAndALine) {
    struct Case {
        const char* text;
        HandOffDecision decision;
    };
    const Case cases[] = {
        {"", {}},
        {"a.c", {true, -1}},
        {"-l20", {true, -1}},
        {"a.c -L20", {true, 20}},
        {"-l5 a.c", {true, 5}},
        {"-l5 -l6", {true, 5}},
        {"a.c b.c", {false, -1}},
        {"a.c b.c -l5", {}},
        {"*.c", {}},
        {"a?.c", {}},
    };
    for (const Case& c : cases) {
        const CommandLine line = ParseCommandLine(std::string("vexa ") + c.text);
        EXPECT_EQ(ShouldHandOff(line.text, line.arguments), c.decision) << c.text;
    }
}

std::string Upper(std::string text) {
    std::ranges::transform(text, text.begin(), UpperAscii);
    return text;
}

// The file goes beside the program, which on Windows is the test program itself.
class HandOffTest : public testing::Test {
  protected:
    HandOffTest() { platform::RemoveFile(file()); }
    ~HandOffTest() override {
        platform::RemoveFile(file());
        platform::DeleteGlobalMarker(kActiveMarker);
    }
    bool handOff(const std::string& arguments) { return HandedOff(ParseCommandLine("vexa " + arguments), notices_); }
    static std::string file() { return DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT"; }
    static std::string content() { return File(file(), platform::OpenMode::Read).readUpTo(4096).value_or("none"); }
    void put(std::string_view bytes) { WriteWholeFile(file(), bytes); }

    test::TestDisk disk_;
    test::RecordingNotices notices_;
};

TEST_F(HandOffTest, NothingIsHandedOverUnlessAnEditorRuns) {
    EXPECT_FALSE(handOff("a.c"));
    EXPECT_FALSE(platform::PathExists(file()));
    platform::AddGlobalMarker(kActiveMarker);
    EXPECT_TRUE(handOff("a.c"));
    EXPECT_EQ(content(), Upper(disk_.path("a.c")) + "\r\n-1\r\n");
    EXPECT_TRUE(notices_.boxes.empty());
}

TEST_F(HandOffTest, OnlyALineOfTheUpperCaseFormIsCutOffTheName) {
    platform::AddGlobalMarker(kActiveMarker);
    const std::string cutAway = "\"a.c" + std::string(255, ' ') + "x";  // behind the 259 characters that count
    const std::pair<const char*, std::string> cases[] = {
        {"a.c -L20", disk_.path("a.c") + "\r\n20"},       {"a.c -l20", disk_.path("a.c -l20") + "\r\n20"},
        {"a.c /L20", disk_.path("a.c \\L20") + "\r\n20"}, {"\"a b.c\" -L3", disk_.path("a b.c") + "\r\n3"},
        {"\"a b.c\"", disk_.path("a b.c") + "\r\n-1"},    {"x-Lib.c", disk_.path("x-Lib.c") + "\r\n-1"},
        {"x-Lib.c -L4", disk_.path("x") + "\r\n4"},       {cutAway.c_str(), disk_.path("a.c") + "\r\n-1"},
    };
    for (const auto& [arguments, expected] : cases) {
        EXPECT_TRUE(handOff(arguments)) << arguments;
        EXPECT_EQ(content(), Upper(expected) + "\r\n") << arguments;
    }
}

TEST_F(HandOffTest, ANameThatIsNoPathIsNotHandedOver) {
    platform::AddGlobalMarker(kActiveMarker);
    EXPECT_FALSE(handOff("-L20 a.c")) << "nothing is left in front of the line";
    EXPECT_FALSE(handOff(std::string(200, 'x')));
    EXPECT_FALSE(handOff("\"a.c" + std::string(254, ' ') + "x"));
    EXPECT_FALSE(platform::PathExists(file()));
    EXPECT_TRUE(notices_.boxes.empty());
}

TEST_F(HandOffTest, AFileThatCannotBeWrittenIsToldAndTheEditorStarts) {
    platform::AddGlobalMarker(kActiveMarker);
    SetFileFault([](FileStep step) { return step == FileStep::Open; });
    EXPECT_FALSE(handOff("a.c"));
    SetFileFault([](FileStep step) { return step == FileStep::Close; });
    EXPECT_FALSE(handOff("a.c"));
    SetFileFault(nullptr);
    const test::BoxNotice told{FillText(TextId::UnexpectedError, {"VEXA", "95"}), "Vexa Error", BoxButtons::Ok};
    EXPECT_EQ(notices_.boxes, (std::vector{told, told}));
}

#ifndef _WIN32
TEST_F(HandOffTest, TheRunningEditorIsToldByABroadcast) {
    platform::AddGlobalMarker(kActiveMarker);
    handOff("a.c");
    EXPECT_EQ(platform::host::ThePlaces().broadcasts, std::vector<std::string>{"VexaFileOpen"});
    platform::host::ThePlaces().refusesBroadcasts = true;
    EXPECT_FALSE(handOff("a.c"));
    EXPECT_TRUE(notices_.boxes.empty());
}
#endif

TEST_F(HandOffTest, AnyBytesAreReadAsFileAndLine) {
    using namespace std::string_literals;
    const std::pair<std::string, FileAtLine> cases[] = {
        {"C:\\A.C\r\n20\r\n", {"C:\\A.C", 20}},
        {"C:\\A.C\n-1\n", {"C:\\A.C", -1}},
        {"C:\\A.C", {"C:\\A.C", 0}},
        {"", {"", 0}},
        {"\r\n5\r\n", {"", 5}},
        {"C:\\A.C\r\nabc", {"C:\\A.C", 0}},
        {std::string(255, 'x') + "\r\n7\n", {std::string(255, 'x'), 7}},
        {std::string(300, 'x') + "\n7\n", {std::string(255, 'x'), 7}},
        {std::string(1 << 20, 'y'), {std::string(255, 'y'), 0}},
        {"a\0b\r\n3"s, {"a\0b"s, 3}},
        {"C:\\A.C\r\n20\r\n5\r\n", {"C:\\A.C", 20, 5}},
        {"C:\\A.C\r\n20\r\n5\r\n7\r\n8", {"C:\\A.C", 20, 5, 7}},
        {"C:\\A.C\r\n\r\nx\r\n-7\r\n", {"C:\\A.C", 0, 0, 0}},
    };
    for (const auto& [bytes, expected] : cases) {
        put(bytes);
        EXPECT_EQ(HandOffInbox().take(), expected) << bytes.substr(0, 40);
    }
    EXPECT_TRUE(notices_.boxes.empty());
}

TEST_F(HandOffTest, AFileIsTakenOnceAndItsBroadcastsAreAnswered) {
    const std::uint32_t now = platform::Ticks();
    EXPECT_EQ(HandOffInbox().take(), std::nullopt);
    put("C:\\A.C\r\n-1\r\n");
    HandOffInbox inbox;
    EXPECT_NE(inbox.take(), std::nullopt);
    EXPECT_EQ(inbox.take(), std::nullopt);
    EXPECT_TRUE(HandOffInbox().wasTaken(now));
    EXPECT_TRUE(HandOffInbox().wasTaken(platform::SharedNumber("VexaHandOffTaken").get())) << "at the same tick";
    EXPECT_FALSE(HandOffInbox().wasTaken(now + 1000000));
    AwaitReading();  // what has been taken is not waited for
}

}  // namespace
}  // namespace vexa

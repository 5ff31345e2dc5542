#include "base/file.h"

#include <gtest/gtest.h>

#include "support/full_disk.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using platform::OpenMode;

std::optional<FileStep> g_failingStep;

class FileTest : public testing::Test {
  protected:
    FileTest() {
        SetFileFault([](FileStep step) { return step == g_failingStep; });
    }
    ~FileTest() override {
        g_failingStep.reset();
        SetFileFault(nullptr);
    }

    test::TestDisk disk;
};

TEST_F(FileTest, ReadsUpToALimit) {
    disk.put("A", "0123456789");
    const auto openA = [&] { return File(disk.path("A"), OpenMode::Read); };
    EXPECT_EQ(openA().readAll(10), "0123456789");
    EXPECT_EQ(openA().readAll(9), std::nullopt);
    EXPECT_EQ(openA().readUpTo(9), "012345678");
    EXPECT_EQ(openA().readUpTo(100), "0123456789");
    File file = openA();
    EXPECT_TRUE(file.seek(7));
    EXPECT_EQ(file.readAll(100), "789") << "the rest";
    EXPECT_EQ(file.readAll(100), "");
    EXPECT_EQ(File().readAll(100), std::nullopt);
    const std::string big(300000, 'b');
    disk.put("BIG", big);
    EXPECT_EQ(File(disk.path("BIG"), OpenMode::Read).readAll(1 << 20), big);
}

TEST_F(FileTest, ClosesItselfAndMoves) {
    {
        File first(disk.path("A"), OpenMode::CreateAlways);
        File second(std::move(first));
        EXPECT_FALSE(first.isOpen());
        EXPECT_FALSE(File(disk.path("A"), OpenMode::ReadWrite).isOpen()) << "a second writer";
        EXPECT_TRUE(second.write("a"));
        second = File(disk.path("B"), OpenMode::CreateAlways);
        EXPECT_TRUE(File(disk.path("A"), OpenMode::ReadWrite).isOpen()) << "closed when another took its place";
    }
    EXPECT_TRUE(File(disk.path("B"), OpenMode::ReadWrite).isOpen());
    EXPECT_TRUE(File().close());
}

TEST_F(FileTest, FaultsRefuseOneStepOfWriting) {
    disk.put("A", "old");
    g_failingStep = FileStep::Open;
    EXPECT_FALSE(File(disk.path("A"), OpenMode::CreateAlways).isOpen());
    EXPECT_TRUE(File(disk.path("A"), OpenMode::Read).isOpen()) << "reading has no such steps";
    EXPECT_EQ(disk.get("A"), "old");
    for (const FileStep step : {FileStep::Write, FileStep::End, FileStep::Flush, FileStep::Close}) {
        g_failingStep = step;
        File file(disk.path("A"), OpenMode::ReadWrite);
        EXPECT_EQ(file.write("new"), step != FileStep::Write);
        EXPECT_EQ(file.endHere(), step != FileStep::End);
        EXPECT_EQ(file.flush(), step != FileStep::Flush);
        EXPECT_EQ(file.close(), step != FileStep::Close);
        EXPECT_FALSE(file.isOpen());
    }
}

TEST_F(FileTest, WholeFilesAreWrittenOrLeftAsTheyWere) {
    const std::string path = disk.path("A");
    EXPECT_TRUE(WriteWholeFile(path, "first"));
    EXPECT_TRUE(WriteWholeFile(path, "2"));
    EXPECT_EQ(disk.get("A"), "2");
    for (const FileStep step : {FileStep::Open, FileStep::Write, FileStep::Flush, FileStep::Close}) {
        g_failingStep = step;
        EXPECT_FALSE(WriteWholeFile(path, "never"));
        EXPECT_FALSE(WriteWholeFile(disk.path("NEW"), "never"));
    }
    g_failingStep.reset();
    disk.setReadOnly("A", true);
    EXPECT_FALSE(WriteWholeFile(path, "never"));
    EXPECT_FALSE(WriteWholeFile(disk.path("NO\\A"), "never"));
    EXPECT_EQ(disk.get("A"), "2");
    EXPECT_EQ(disk.count(), 1u) << "nothing is left behind";
    disk.put("B.~0", "of a crash");
    EXPECT_TRUE(WriteWholeFile(disk.path("B"), "b"));
    EXPECT_EQ(disk.get("B"), "b");
    EXPECT_EQ(disk.get("B.~0"), "of a crash");
}

#ifndef _WIN32
TEST_F(FileTest, AFullDiskRefusesWhatDoesNotFit) {
    const std::string data(200000, 'x');
    disk.put("A", "old");
    const test::FullDisk full(100000);
    EXPECT_FALSE(WriteWholeFile(disk.path("A"), data));
    EXPECT_EQ(disk.get("A"), "old");
    EXPECT_EQ(disk.count(), 1u);
    File file(disk.path("A"), OpenMode::ReadWrite);
    EXPECT_FALSE(file.write(data)) << "a part of it is taken";
    EXPECT_EQ(file.size(), std::uint64_t{100000});
}
#endif

}  // namespace
}  // namespace vexa

// What the platform promises about files, held to on every platform.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa::platform {
namespace {

using Names = std::vector<std::string>;

class PlatformFiles : public testing::Test {
  protected:
    FileHandle open(std::string_view name, OpenMode mode) { return OpenFile(disk.path(name), mode); }

    bool opens(std::string_view name, OpenMode mode) {
        const FileHandle file = open(name, mode);
        return file != kNoFile && CloseFile(file);
    }

    void writeTo(std::string_view name, OpenMode mode, std::string_view bytes) {
        const FileHandle file = open(name, mode);
        ASSERT_NE(file, kNoFile);
        EXPECT_TRUE(WriteFile(file, bytes));
        EXPECT_TRUE(FlushFile(file));
        EXPECT_TRUE(CloseFile(file));
    }

    test::TestDisk disk;
};

constexpr OpenMode kWritingModes[] = {OpenMode::ReadWrite, OpenMode::CreateAlways, OpenMode::CreateNew};

TEST_F(PlatformFiles, EachModeTreatsMissingAndExistingFilesAsItSays) {
    EXPECT_FALSE(opens("NEW", OpenMode::Read));
    EXPECT_FALSE(opens("NEW", OpenMode::ReadWrite));
    EXPECT_FALSE(disk.has("NEW"));
    writeTo("NEW", OpenMode::CreateNew, "created");
    EXPECT_EQ(disk.get("NEW"), "created");
    EXPECT_FALSE(opens("NEW", OpenMode::CreateNew));
    writeTo("NEW", OpenMode::ReadWrite, "CR");
    EXPECT_EQ(disk.get("NEW"), "CReated") << "nothing truncated";
    writeTo("NEW", OpenMode::CreateAlways, "x");
    EXPECT_EQ(disk.get("NEW"), "x") << "emptied first";
}

TEST_F(PlatformFiles, ReadingWritingSeekingAndEndingMoveOnePosition) {
    const std::string allBytes = [] {
        std::string bytes;
        for (int i = 0; i < 256; ++i)
            bytes += static_cast<char>(i);
        return bytes;
    }();
    disk.put("A", allBytes);
    const FileHandle file = open("A", OpenMode::ReadWrite);
    char buffer[300];
    EXPECT_EQ(FileSize(file), std::uint64_t{256});
    EXPECT_EQ(ReadFile(file, buffer, sizeof buffer), std::size_t{256});
    EXPECT_EQ(std::string(buffer, 256), allBytes);
    EXPECT_EQ(ReadFile(file, buffer, sizeof buffer), std::size_t{0}) << "at the end";
    EXPECT_TRUE(SeekFile(file, 10));
    EXPECT_TRUE(WriteFile(file, "0123456789"));
    EXPECT_TRUE(EndFileHere(file));
    EXPECT_EQ(FileSize(file), std::uint64_t{20});
    EXPECT_TRUE(CloseFile(file));
    EXPECT_EQ(disk.get("A"), allBytes.substr(0, 10) + "0123456789");
}

TEST_F(PlatformFiles, PositionsBeyondFourGigabytesAreReached) {
    constexpr std::uint64_t kFar = (std::uint64_t{5} << 30) + 7;
    const FileHandle file = open("BIG", OpenMode::CreateAlways);
    EXPECT_TRUE(SeekFile(file, kFar));
    EXPECT_TRUE(EndFileHere(file));
    EXPECT_EQ(FileSize(file), kFar);
    EXPECT_TRUE(SeekFile(file, 0xFFFFFFFF)) << "the half that also stands for a failure";
    EXPECT_TRUE(EndFileHere(file));
    EXPECT_EQ(FileSize(file), std::uint64_t{0xFFFFFFFF});
    CloseFile(file);
}

TEST_F(PlatformFiles, OperationsOnTheWrongKindOfHandleFail) {
    disk.put("A", "text");
    const FileHandle reader = open("A", OpenMode::Read);
    EXPECT_FALSE(WriteFile(reader, "x"));
    EXPECT_FALSE(EndFileHere(reader));
    CloseFile(reader);
    const FileHandle writer = open("A", OpenMode::CreateAlways);
    char byte;
    EXPECT_EQ(ReadFile(writer, &byte, 1), std::nullopt);
    CloseFile(writer);
    EXPECT_FALSE(WriteFile(kNoFile, "x"));
    EXPECT_EQ(FileSize(kNoFile), std::nullopt);
    EXPECT_EQ(disk.get("A"), "");
}

TEST_F(PlatformFiles, NamesThatAreNoFilesAreRefused) {
    disk.makeDirectory("DIR");
    const std::string tooLong = "LONG" + std::string(300, 'x');
    for (const std::string name : {"DIR", "DIR\\", "NO\\A", "A?", "A*", "A|B", "A<B", "NUL", tooLong.c_str()}) {
        EXPECT_FALSE(opens(name, OpenMode::Read)) << name;
        for (const OpenMode mode : kWritingModes)
            EXPECT_FALSE(opens(name, mode)) << name;
    }
    EXPECT_EQ(OpenFile("", OpenMode::CreateAlways), kNoFile);
    EXPECT_EQ(OpenFile("\\??Oops\\A", OpenMode::CreateAlways), kNoFile);
    EXPECT_EQ(disk.count(), 1u);
}

TEST_F(PlatformFiles, ReadOnlyFilesAreOnlyReadAndRemoved) {
    disk.put("A", "old");
    disk.put("B", "new");
    disk.setReadOnly("A", true);
    EXPECT_TRUE(opens("A", OpenMode::Read));
    for (const OpenMode mode : kWritingModes)
        EXPECT_FALSE(opens("A", mode));
    EXPECT_FALSE(RenameFile(disk.path("B"), disk.path("A")));
    EXPECT_EQ(disk.get("A"), "old");
    EXPECT_EQ(disk.get("B"), "new");
    EXPECT_TRUE(RemoveFile(disk.path("A")));
    EXPECT_FALSE(disk.has("A"));
}

TEST_F(PlatformFiles, HiddenFilesAreWrittenAndRemovedLikeOthers) {
    disk.put(".hid", "old");
    disk.setHidden(".hid");
    writeTo(".hid", OpenMode::CreateAlways, "a");
    writeTo(".hid", OpenMode::ReadWrite, "b");
    EXPECT_EQ(disk.get(".hid"), "b");
    EXPECT_EQ(FindFiles(disk.path("*.*")), Names{}) << "still hidden";
    EXPECT_TRUE(RemoveFile(disk.path(".hid")));
}

TEST_F(PlatformFiles, AWriterSharesWithReadersAlone) {
    disk.put("A", "text");
    disk.put("B", "other");
    const FileHandle writer = open("A", OpenMode::ReadWrite);
    EXPECT_TRUE(opens("A", OpenMode::Read));
    EXPECT_FALSE(opens("A", OpenMode::ReadWrite));
    EXPECT_FALSE(opens("A", OpenMode::CreateAlways));
    EXPECT_FALSE(RemoveFile(disk.path("A"))) << "in use";
    EXPECT_FALSE(RenameFile(disk.path("A"), disk.path("C"))) << "in use";
    EXPECT_FALSE(RenameFile(disk.path("B"), disk.path("A"))) << "in use";
    CloseFile(writer);
    EXPECT_TRUE(opens("A", OpenMode::ReadWrite));
    const test::LockedFile locked(disk.path("B"));
    EXPECT_FALSE(opens("B", OpenMode::Read));
    EXPECT_TRUE(PathExists(disk.path("B")));
    EXPECT_EQ(disk.get("A"), "text");
}

TEST_F(PlatformFiles, RenamingMovesOrReplaces) {
    disk.put("A", "a");
    disk.put("B", "b");
    disk.makeDirectory("DIR");
    EXPECT_TRUE(RenameFile(disk.path("A"), disk.path("DIR\\C")));
    EXPECT_FALSE(disk.has("A"));
    EXPECT_TRUE(RenameFile(disk.path("B"), disk.path("DIR\\C")));
    EXPECT_EQ(disk.get("DIR\\C"), "b");
    EXPECT_FALSE(RenameFile(disk.path("MISSING"), disk.path("DIR\\C")));
    EXPECT_FALSE(RenameFile(disk.path("DIR\\C"), disk.path("NO\\C")));
    EXPECT_FALSE(RenameFile(disk.path("DIR\\C"), disk.path("DIR")));
    EXPECT_EQ(disk.get("DIR\\C"), "b");
}

TEST_F(PlatformFiles, ExistenceAndRemovalTellFilesFromDirectories) {
    disk.put("File.txt", "");
    EXPECT_TRUE(MakeDirectory(disk.path("Dir")));
    EXPECT_TRUE(MakeDirectory(disk.path("DIR"))) << "there already";
    EXPECT_FALSE(MakeDirectory(disk.path("FILE.TXT")));
    EXPECT_FALSE(MakeDirectory(disk.path("NO\\DIR"))) << "one level at a time";
    EXPECT_TRUE(PathExists(disk.path("FILE.TXT")));
    EXPECT_TRUE(PathExists(disk.path("dir")));
    EXPECT_TRUE(PathExists(disk.path("DIR\\")));
    EXPECT_FALSE(PathExists(disk.path("NONE")));
    EXPECT_FALSE(PathExists(disk.path("*.*")));
    EXPECT_FALSE(PathExists(""));
    EXPECT_TRUE(DirectoryExists(disk.path("DIR")));
    EXPECT_FALSE(DirectoryExists(disk.path("FILE.TXT")));
    EXPECT_FALSE(RemoveFile(disk.path("DIR")));
    EXPECT_TRUE(RemoveFile(disk.path("NONE")));
    EXPECT_TRUE(RemoveFile(disk.path("NO\\NONE")));
    EXPECT_TRUE(RemoveFile(disk.path("FILE.TXT")));
    EXPECT_EQ(disk.count(), 1u);
}

TEST_F(PlatformFiles, WildcardsFindNormalFilesInOrder) {
    for (const char* name : {"b.c", "A.C", "a.cpp", "readme", ".dot.c"})
        disk.put(name, "");
    disk.setHidden(".dot.c");
    disk.makeDirectory("d.c");
    disk.put("d.c\\in.c", "");
    EXPECT_EQ(FindFiles(disk.path("*.c")), (Names{"A.C", "b.c"}));
    EXPECT_EQ(FindFiles("?.C*"), (Names{"A.C", "a.cpp", "b.c"})) << "in the current directory";
    EXPECT_EQ(FindFiles(disk.path("*.*")), (Names{"A.C", "a.cpp", "b.c", "readme"}));
    EXPECT_EQ(FindFiles(disk.path("ReadMe")), Names{"readme"});
    EXPECT_EQ(FindFiles(disk.path("d.c\\*")), Names{"in.c"});
    EXPECT_EQ(FindFiles(disk.path("*.x")), Names{});
    EXPECT_EQ(FindFiles(disk.path("NO\\*")), Names{});
    EXPECT_EQ(FindFiles(""), Names{});
    disk.makeDirectory("d.c\\B");
    disk.makeDirectory("d.c\\a");
    EXPECT_EQ(FindDirectories(disk.path("d.c")), (Names{"..", "a", "B"}));
    EXPECT_EQ(FindDirectories(disk.path("NO")), Names{});
    DirectoryContents contents;
    EXPECT_EQ(DirectoryReader(disk.path("NO")).read(contents), DirectoryReader::State::Failed);
    DirectoryReader reader(disk.path());
    EXPECT_EQ(reader.read(contents), DirectoryReader::State::Ended);
    std::ranges::sort(contents.files);
    EXPECT_EQ(contents.files, (Names{"A.C", "a.cpp", "b.c", "readme"}));
    EXPECT_EQ(contents.directories, Names{"d.c"});
    EXPECT_EQ(DirectoryReader(disk.path("D.C")).identity(), DirectoryReader(disk.path("d.c\\.")).identity());
    EXPECT_NE(DirectoryReader(disk.path("d.c")).identity(), reader.identity());
    const Names inRoot = FindDirectories("C:\\");
    EXPECT_EQ(std::ranges::count(inRoot, ".."), 0) << "nothing is above a root";
}

}  // namespace
}  // namespace vexa::platform

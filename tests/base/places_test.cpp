// Paths, the current drive and directory, and the directories beside the executable.
#include <gtest/gtest.h>

#include "base/directories.h"
#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using platform::ChangeDirectory;
using platform::CurrentDirectory;
using platform::FullPath;

class Places : public testing::Test {
  protected:
    test::TestDisk disk;
};

TEST_F(Places, PathsAreMadeFullAgainstTheCurrentDirectory) {
    disk.makeDirectory("Sub\\Deep");
    ASSERT_TRUE(ChangeDirectory(disk.path("Sub")));
    EXPECT_EQ(FullPath("a.txt"), disk.path("Sub\\a.txt"));
    EXPECT_EQ(FullPath("Deep/./b.txt"), disk.path("Sub\\Deep\\b.txt"));
    EXPECT_EQ(FullPath("..\\c.txt"), disk.path("c.txt"));
    EXPECT_EQ(FullPath("Deep\\"), disk.path("Sub\\Deep\\"));
    EXPECT_EQ(FullPath("."), disk.path("Sub"));
    EXPECT_EQ(FullPath("name. . "), disk.path("Sub\\name")) << "blanks and dots at the end are not part of a name";
    EXPECT_EQ(FullPath("C:\\..\\..\\x"), "C:\\x");
    EXPECT_EQ(FullPath("C:\\"), "C:\\");
    EXPECT_EQ(FullPath("C:here"), disk.path("Sub\\here")) << "in that drive's own directory";
    EXPECT_EQ(FullPath("\\top").substr(1), ":\\top");
    EXPECT_EQ(FullPath("\\\\server\\share\\x"), "\\\\server\\share\\x");
    EXPECT_EQ(FullPath(""), "");
    EXPECT_EQ(FullPath("   "), "");
    EXPECT_EQ(FullPath(std::string("a\0b", 3)), "");
    EXPECT_EQ(FullPath("C:\\" + std::string(256, 'x')).size(), 259u);
    EXPECT_EQ(FullPath("C:\\" + std::string(257, 'x')), "");
}

TEST_F(Places, DirectoriesAndDrivesChangeOnlyToWhatExists) {
    disk.makeDirectory("Sub");
    disk.put("FILE", "");
    EXPECT_TRUE(ChangeDirectory("Sub\\"));
    EXPECT_EQ(CurrentDirectory(), disk.path("Sub"));
    for (const char* place : {"NONE", "..\\FILE", "", "A?", "\\??Oops"})
        EXPECT_FALSE(ChangeDirectory(place)) << place;
    for (const int drive : {-1, 26, 1000})
        EXPECT_FALSE(platform::ChangeDrive(drive)) << drive;
    EXPECT_FALSE(platform::ChangeDrive('q' - 'a'));
    EXPECT_NE(platform::DriveLetters().find('C'), std::string::npos);
    EXPECT_EQ(platform::DriveLetters().find('Q'), std::string::npos);
    EXPECT_EQ(CurrentDirectory(), disk.path("Sub"));
    EXPECT_TRUE(platform::ChangeDrive('c' - 'a'));
    EXPECT_EQ(CurrentDirectory(), disk.path("Sub")) << "a drive keeps its directory";
    EXPECT_TRUE(ChangeDirectory("C:\\"));
    EXPECT_EQ(CurrentDirectory(), "C:\\");
}

TEST_F(Places, TheProgramIsAFile) {
    disk.put("VEXA.EXE", "");
    EXPECT_TRUE(platform::PathExists(platform::ProgramPath()));
    EXPECT_NE(DirectoryOf(platform::ProgramPath()), "");
}

TEST_F(Places, EnvironmentVariablesHaveAnyLength) {
    for (const std::size_t length : {std::size_t{1}, std::size_t{255}, std::size_t{256}, std::size_t{30000}}) {
        const test::EnvironmentSetting setting("VEXA_TEST_VALUE", std::string(length, 'x'));
        EXPECT_EQ(platform::EnvironmentValue("VEXA_TEST_VALUE"), std::string(length, 'x')) << length;
    }
    EXPECT_EQ(platform::EnvironmentValue("VEXA_TEST_VALUE"), "") << "there is none";
}

TEST_F(Places, TheDirectoriesBesideTheExecutableAreMade) {
    const Directories directories(disk.programPath());
    EXPECT_EQ(directories.GetDirectory(kHelpDirectory), disk.path("vHelp"));
    EXPECT_EQ(directories.GetDirectory(kProgramDirectory), disk.path() + "\\");
    EXPECT_EQ(directories.GetDirectory(kBackupDirectory), disk.path("vbackup"));
    EXPECT_EQ(directories.GetDirectory(kConfigDirectory), disk.path("vConfig"));
    for (const int other : {0, 3, 5, 16, -1})
        EXPECT_EQ(directories.GetDirectory(other), "") << other;
    EXPECT_EQ(disk.count(), 3u);
    disk.put("vConfig\\kept", "x");
    const Directories again(disk.programPath());
    EXPECT_EQ(disk.get("vConfig\\kept"), "x");
}

TEST_F(Places, ADirectoryThatCannotBeMadeIsNotReported) {
    disk.put("vHelp", "a file in its place");
    const Directories directories(disk.programPath());
    EXPECT_EQ(directories.GetDirectory(kHelpDirectory), disk.path("vHelp"));
    EXPECT_TRUE(platform::DirectoryExists(disk.path("vConfig")));
}

TEST_F(Places, AProgramDirectoryTooLongForItsChildrenGivesImpossiblePaths) {
    // Each directory name fits the disk; the path grows to 238 characters with its "\".
    std::string longest = disk.path();
    while (longest.size() < 237) {
        longest += "\\" + std::string(std::min<std::size_t>(50, 236 - longest.size()), 'd');
        ASSERT_TRUE(platform::MakeDirectory(longest));
    }
    const Directories impossible(longest + "\\V.EXE");
    for (const int selector : {1, 2, 4, 8})
        EXPECT_EQ(impossible.GetDirectory(selector), "\\??Oops") << selector;
    EXPECT_FALSE(platform::PathExists(longest + "\\vHelp"));
    EXPECT_FALSE(platform::MakeDirectory(impossible.GetDirectory(kHelpDirectory)));
    EXPECT_EQ(Directories("C:\\" + std::string(233, 'd') + "\\V.EXE").GetDirectory(kHelpDirectory).size(), 237u + 5)
        << "one character less is allowed";
}

TEST(DirectoryOf, EndsAfterTheLastBackslashOrColon) {
    EXPECT_EQ(DirectoryOf("C:\\EDIT\\VEXA.EXE"), "C:\\EDIT\\");
    EXPECT_EQ(DirectoryOf("C:VEXA.EXE"), "C:");
    EXPECT_EQ(DirectoryOf("VEXA.EXE"), "");
}

}  // namespace
}  // namespace vexa

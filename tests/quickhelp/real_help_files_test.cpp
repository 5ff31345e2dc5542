// Indexes of real help files, which belong to their makers and are no part of this project: the environment variable
// VEXA_HELP_FILES names their folder. Without it the test is skipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "quickhelp/help_index.h"
#include "quickhelp/help_lookup.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

struct RealFile {
    const char* name;
    int keywords;
    const char* title;
    const char* first;
    const char* last;
};
constexpr RealFile kFiles[] = {
    {"KARSTEN", 49, "Karsten Bilderschau-Hilfe", "Alles markieren", "Zuletzt bearbeitete Dokumente"},
    {"KLOTSKI", 9, "Klotski", "Commands", "Strategy and Hints"},
    {"MADE_DEEP", 6009, "Sample Help", "_exit",
     "\xDC"
     "bersicht"},
    {"MADE_SAMPLE", 9, "Sample Help", "_exit",
     "\xDC"
     "bersicht"},
    {"ORPHEUS", 4397, "Orpheus", "About", "ZeroDisplayValue"},
    {"PJABOUT", 66, "DelphiDabbler About Box Component", "ButtonGlyph", "VersionInfo,TPJAboutBoxDlg"},
    {"PJVER", 89, "DelphiDabbler Components - TPJVersionInfo", "CharSet", "TPJVersionNumber"},
    {"STONES", 10, "Stones", "Commands", "Strategy and Hints"},
    {"WINCHESS", 57, "Help for Chess", "backup", "Wish List"},
    {"WINFILE", 113, "File Manager Help", "applications, starting", "volume labels, creating"},
};

class RealHelpFiles : public testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("VEXA_HELP_FILES");
        if (folder == nullptr) GTEST_SKIP() << "VEXA_HELP_FILES names no folder of help files";
        folder_ = folder;
    }
    std::string bytesOf(const std::string& name) const {
        std::ifstream file(folder_ / (name + ".HLP"), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder_;
    TestDisk disk;
};

TEST_F(RealHelpFiles, HaveTheirTitleAndKeywords) {
    for (const RealFile& file : kFiles) {
        const std::string name = file.name;
        disk.put(name + ".HLP", bytesOf(name));
        ASSERT_EQ(BuildHelpIndex(name, disk.path(name + ".ZIX")), IndexResult::Written) << name;
        const std::string index = disk.get(name + ".ZIX");
        EXPECT_EQ(std::stoi(index), file.keywords) << name;
        EXPECT_EQ(std::ranges::count(index, '\n'), file.keywords + 3) << name;
        EXPECT_NE(index.find(std::string("\r\n") + file.title + "\r\n" + file.first + "\r\n"), std::string::npos)
            << name;
        EXPECT_TRUE(index.ends_with(std::string("\r\n") + file.last + "\r\n")) << name;
    }
    RecordingNotices notices;
    HelpLookup lookup(disk.path(), notices);
    EXPECT_EQ(lookup.Lookup("to32inspectorgrid:begin"), LookupResult::OneMatch);
    EXPECT_EQ(lookup.Lookup("strategy"), LookupResult::SeveralMatches);
}

TEST_F(RealHelpFiles, OneWithoutKeywordsHasNoIndex) {
    disk.put("WARHELP.HLP", bytesOf("WARHELP"));
    EXPECT_EQ(BuildHelpIndex("WARHELP", disk.path("WARHELP.ZIX")), IndexResult::NoKeywords);
}

}  // namespace
}  // namespace vexa::test

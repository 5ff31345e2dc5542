// The rules of the dialog "Help Configuration".
#include "quickhelp/help_configuration_model.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/platform.h"
#include "quickhelp/help_file_writer.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

using Kind = HelpFileRow::Kind;
using Names = std::vector<std::string>;

class HelpConfiguration : public testing::Test {
  protected:
    HelpConfiguration() {
        disk.makeDirectory("vHelp");
        disk.makeDirectory("Books");
        HelpFileWriter writer;
        writer.addSystem15("Title");
        disk.put("Books\\EMPTY.HLP", writer.bytes());
        writer.addKeywords(Keywords({"key"}));
        disk.put("Books\\Sound.hlp", writer.bytes());
        disk.put("Books\\other.txt", "");
        platform::ChangeDirectory(disk.path("Books"));
    }
    ~HelpConfiguration() override { platform::ChangeDirectory(disk.path() + "\\"); }

    static void choose(HelpConfigurationModel& model, const std::string& text) {
        const auto row = std::ranges::find(model.rows(), text, &HelpFileRow::text);
        ASSERT_NE(row, model.rows().end()) << text;
        model.chooseRow(static_cast<std::size_t>(row - model.rows().begin()));
    }

    TestDisk disk;
    RecordingNotices notices;
};

TEST_F(HelpConfiguration, GoesThroughTheDisksAndBack) {
    {
        HelpConfigurationModel model(disk.path("vHelp"), notices);
        EXPECT_EQ(model.path(), disk.path("Books"));
        EXPECT_EQ(model.rows()[0], (HelpFileRow{Kind::File, "EMPTY.HLP"}));
        EXPECT_EQ(model.rows()[1], (HelpFileRow{Kind::File, "Sound.hlp"}));
        EXPECT_EQ(model.rows()[2].text(), "[..]");
        EXPECT_EQ(model.rows()[3].kind, Kind::Drive);
        EXPECT_FALSE(model.open()) << "nothing is chosen";
        choose(model, "[..]");
        EXPECT_FALSE(model.canAdd());
        EXPECT_FALSE(model.add());
        EXPECT_TRUE(model.open());
        EXPECT_EQ(model.chosenRow(), std::nullopt);
        choose(model, "[vHelp]");
        EXPECT_TRUE(model.open());
        EXPECT_EQ(model.path(), disk.path("vHelp"));
        choose(model, "[-c-]");
        EXPECT_TRUE(model.open());
        EXPECT_EQ(model.path(), platform::CurrentDirectory());
    }
    EXPECT_EQ(platform::CurrentDirectory(), disk.path("Books"));
}

TEST_F(HelpConfiguration, ADirectoryThatHasGoneLeavesTheListAsItWas) {
    platform::ChangeDirectory(disk.path() + "\\");
    HelpConfigurationModel model(disk.path("vHelp"), notices);
    const auto rows = model.rows();
    choose(model, "[Books]");
    disk.remove("Books");
    EXPECT_FALSE(model.open());
    EXPECT_EQ(model.rows(), rows);
    EXPECT_NE(model.chosenRow(), std::nullopt);
}

TEST_F(HelpConfiguration, InstallsAndRemoves) {
    disk.put("vHelp\\OLD.ZIX", "");
    HelpConfigurationModel model(disk.path("vHelp"), notices);
    EXPECT_EQ(model.installed(), Names{"old.hlp"});
    EXPECT_FALSE(model.canRemove());
    choose(model, "Sound.hlp");
    EXPECT_TRUE(model.canAdd());
    EXPECT_TRUE(model.add());
    EXPECT_FALSE(model.canAdd()) << "nothing is chosen any more";
    EXPECT_TRUE(disk.get("vHelp\\Sound.ZIX").starts_with("00001\r\n"));
    choose(model, "Sound.hlp");
    EXPECT_TRUE(model.open()) << "a double click installs too";
    EXPECT_EQ(model.installed(), (Names{"old.hlp", "sound.hlp"})) << "once";
    EXPECT_EQ(HelpConfigurationModel(disk.path("vHelp"), notices).installed(), model.installed());
    EXPECT_EQ(notices.busyCount, 2);
    EXPECT_EQ(notices.busyDepth, 0);

    model.chooseInstalled(1);
    EXPECT_TRUE(model.canRemove());
    model.remove();
    EXPECT_FALSE(model.canRemove());
    EXPECT_EQ(model.installed(), Names{"old.hlp"});
    EXPECT_FALSE(disk.has("vHelp\\Sound.ZIX"));
    model.remove();
    EXPECT_TRUE(notices.boxes.empty());
}

TEST_F(HelpConfiguration, FailuresAreToldInABox) {
    disk.put("vHelp\\OLD.ZIX", "");
    HelpConfigurationModel model(disk.path("vHelp"), notices);
    choose(model, "EMPTY.HLP");
    EXPECT_FALSE(model.open());
    EXPECT_TRUE(model.canAdd()) << "still chosen";
    disk.setReadOnly("vHelp\\OLD.ZIX", true);
    model.chooseInstalled(0);
    model.remove();
    EXPECT_EQ(model.installed(), Names{"old.hlp"});
    EXPECT_TRUE(disk.has("vHelp\\OLD.ZIX"));
    disk.setReadOnly("vHelp\\OLD.ZIX", false);
    EXPECT_EQ(notices.boxes,
              (std::vector<BoxNotice>{
                  {"Error processing 'EMPTY.HLP' help file.\nNo index information found.", "Vexa Error"},
                  {"Unable to update the 'old.zix' file. This file is probably read only!", "Vexa Error"}}));
}

// The path is cut at its first ".", wherever that stands.
TEST_F(HelpConfiguration, ADotInTheDirectoryOfTheIndexesMovesTheIndex) {
    disk.makeDirectory("my.dir");
    HelpConfigurationModel model(disk.path("my.dir"), notices);
    choose(model, "Sound.hlp");
    EXPECT_TRUE(model.add());
    EXPECT_EQ(disk.count("my.dir"), 0u);
    EXPECT_TRUE(disk.has("my.ZIX"));
}

}  // namespace
}  // namespace vexa::test

// Which viewer shows help files.
#include "quickhelp/help_viewer.h"

#include <gtest/gtest.h>

#include "support/test_disk.h"

namespace vexa::test {
namespace {

TEST(HelpViewerChoice, FollowsTheSettingElseWhatTheSystemHas) {
    constexpr std::uint64_t kStub = 12'000;
    constexpr std::uint64_t kReal = 280'000;
    const struct {
        HelpViewerFacts facts;
        HelpViewer expected;
    } cases[] = {
        {{"", false, kReal}, HelpViewer::System},
        {{"", false, kStub}, HelpViewer::Own},
        {{"", false, 0}, HelpViewer::Own},
        {{"", true, kReal}, HelpViewer::Own},
        {{"own", false, kReal}, HelpViewer::Own},
        {{"SYSTEM", true, 0}, HelpViewer::System},
        {{"nonsense", false, kReal}, HelpViewer::System},
        {{"nonsense", false, kStub}, HelpViewer::Own},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ChooseHelpViewer(c.facts), c.expected)
            << c.facts.setting << " " << c.facts.isWine << " " << c.facts.systemViewerSize;
}

TEST(HelpViewerChoice, TheSettingIsReadFromTheEditorOptions) {
    const TestDisk disk;
    const ConfigStore store(disk.path("VEXA.INI"));
    EXPECT_EQ(HelpViewerSetting(store), "");
    disk.put("VEXA.INI", "[Editor Options]\r\nHelpViewer=Own\r\n");
    EXPECT_EQ(HelpViewerSetting(store), "Own");
}

}  // namespace
}  // namespace vexa::test

// The rules of the dialogs "Quick Help" and "Quick Search", and of the commands that lead to them.
#include <gtest/gtest.h>

#include "quickhelp/help_lookup_fixture.h"
#include "quickhelp/linked_help_file.h"
#include "quickhelp/quick_help_commands.h"
#include "quickhelp/quick_help_model.h"

namespace vexa::test {
namespace {

using Next = QuickHelpModel::Next;

class QuickHelpDialogTest : public testing::Test, protected InstalledHelp {
  protected:
    QuickHelpDialogTest() {
        install("A", "First", {"key", "keyboard"});
        install("B", "Second", {"keyboard"});
    }
    QuickHelpModel model() { return {lookup, history, notices}; }

    HistoryList history{disk.path(), QuickHelpModel::kHistoryFile};
};

TEST_F(QuickHelpDialogTest, AChangedKeywordTakesTwoPresses) {
    QuickHelpModel search = model();
    EXPECT_EQ(search.keyword, "");
    EXPECT_TRUE(search.rows().empty());
    search.keyword = "keyboard";
    EXPECT_EQ(search.accept(), Next::FocusList);
    EXPECT_EQ(search.rows(), (std::vector<std::string>{"First", "Second"}));
    EXPECT_EQ(search.chosenRow(), 0u);
    EXPECT_EQ(lookup.chosen(), nullptr);
    search.chooseRow(1);
    EXPECT_EQ(search.accept(), Next::Close);
    EXPECT_EQ(lookup.chosen()->title, "Second");
    EXPECT_EQ(history.entries(), std::vector<std::string>{"keyboard"});

    QuickHelpModel later = model();
    EXPECT_EQ(later.keyword, "keyboard");
    EXPECT_EQ(later.rows().size(), 2u) << "of the last look-up";
    EXPECT_EQ(later.chosenRow(), 0u);
    later.chooseRow(1);
    later.keyword = "KEYBOARD";
    EXPECT_EQ(later.accept(), Next::FocusList) << "another letter case is another keyword";
    EXPECT_EQ(later.chosenRow(), 0u);
    EXPECT_EQ(later.accept(), Next::Close);
    EXPECT_EQ(lookup.chosen()->title, "First");
    EXPECT_TRUE(notices.statuses.empty());
}

TEST_F(QuickHelpDialogTest, WhatIsMissingIsSaidAndTheKeywordAskedForAgain) {
    QuickHelpModel search = model();
    EXPECT_EQ(search.accept(), Next::FocusKeyword);
    EXPECT_EQ(notices.lastStatus(), "No keyword has been specified.");
    for (int press = 1; press <= 2; ++press) {
        search.keyword = std::string(70, 'x');
        EXPECT_EQ(search.accept(), Next::FocusKeyword) << "there is nothing to choose";
        EXPECT_EQ(notices.lastStatus(), "Topic '" + std::string(60, 'x') + "' not found.");
    }
    EXPECT_TRUE(search.rows().empty());
}

class QuickHelpCommandsTest : public QuickHelpDialogTest, protected QuickHelpHost {
  protected:
    bool runDialog(QuickHelpDialog dialog) override {
        events += dialog == QuickHelpDialog::QuickHelp ? "dialog " : "search ";
        if (userChooses) lookup.choose(1);
        return userChooses;
    }
    bool showHelp(const std::string& helpFile, const std::string& keyword) override {
        events += helpFile.substr(helpFile.rfind('\\') + 1) + ":" + keyword + " ";
        return viewerWorks;
    }
    void focusEditWindow() override { events += "focus"; }

    std::string eventsOf(const std::optional<std::string>& word) {
        events.clear();
        notices.statuses.clear();
        commands.quickHelp(word);
        return events;
    }

    QuickHelpCommands commands{lookup, notices, *this};
    std::string events;
    bool userChooses = true;
    bool viewerWorks = true;
};

TEST_F(QuickHelpCommandsTest, QuickHelpShowsAsksOrSaysWhyNot) {
    EXPECT_EQ(eventsOf("key"), "dialog B.HLP:key focus");
    userChooses = false;
    EXPECT_EQ(eventsOf("key"), "dialog focus");
    disk.remove("vHelp\\B.ZIX");
    EXPECT_EQ(eventsOf("KEY"), "A.HLP:KEY focus") << "no question about a single match";
    EXPECT_TRUE(notices.statuses.empty());
    viewerWorks = false;
    EXPECT_EQ(eventsOf("KEY"), "A.HLP:KEY focus");
    EXPECT_EQ(notices.lastStatus(), "Unknown quick help error.");
    EXPECT_EQ(eventsOf("none"), "focus");
    EXPECT_EQ(notices.statuses, (std::vector<StatusNotice>{{"Topic 'none' not found.", true, true}}));
    EXPECT_EQ(eventsOf(""), "");
    EXPECT_EQ(notices.lastStatus(), "No word has been highlighted.");
    EXPECT_EQ(eventsOf(std::nullopt), "");
    EXPECT_EQ(notices.lastStatus(), "Action can only be performed on an open file!");
    disk.remove("vHelp\\A.ZIX");
    EXPECT_EQ(eventsOf(std::string(61, 'w')), "focus");
    EXPECT_EQ(lookup.keyword(), std::string(60, 'w'));
    EXPECT_TRUE(notices.lastStatus().starts_with("No WinHelp files installed."));
}

TEST_F(QuickHelpCommandsTest, QuickSearchShowsWhatIsChosen) {
    lookup.Lookup("key");
    commands.quickSearch();
    EXPECT_EQ(events, "search B.HLP:key ");
    events.clear();
    userChooses = false;
    commands.quickSearch();
    EXPECT_EQ(events, "search ");
}

TEST(LinkedHelpFile, LiesBesideTheLinkOrIsInstalled) {
    const InstalledHelp help;
    help.install("FAR", "Far", {});
    help.disk.makeDirectory("OTHER");
    help.disk.put("OTHER\\NEAR.HLP", "");
    const struct {
        std::string name;
        std::optional<std::string> expected;
    } cases[] = {
        {"near.hlp", help.disk.path("OTHER\\near.hlp")},
        {"NEAR", help.disk.path("OTHER\\NEAR.hlp")},
        {"..\\OTHER\\NEAR.HLP", help.disk.path("OTHER\\NEAR.HLP")},
        {"far.hlp", help.disk.path("FAR.HLP")},
        {"GONE.HLP", std::nullopt},
        {"NUL", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FindLinkedHelpFile(c.name, help.disk.path("OTHER\\FROM.HLP"), help.disk.path("vHelp")), c.expected)
            << c.name;
}

}  // namespace
}  // namespace vexa::test

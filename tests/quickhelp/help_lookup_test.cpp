// Which help files know a keyword, and what any bytes in place of an index do.
#include "quickhelp/help_lookup.h"

#include <gtest/gtest.h>

#include "quickhelp/help_lookup_fixture.h"

namespace vexa::test {
namespace {

class HelpLookupTest : public testing::Test, protected InstalledHelp {};

TEST_F(HelpLookupTest, FindsBeginningsInAnyLetterCase) {
    install("B", "Second", {"alpha", "strcpy"});
    install("A", "First", {"STRLEN", "zeta"});
    EXPECT_EQ(lookup.Lookup("str"), LookupResult::SeveralMatches);
    EXPECT_EQ(lookup.matches(),
              (std::vector<HelpMatch>{{disk.path("A.HLP"), "First"}, {disk.path("B.HLP"), "Second"}}));
    EXPECT_EQ(lookup.chosen(), nullptr);
    EXPECT_EQ(lookup.Lookup("STRc"), LookupResult::OneMatch);
    ASSERT_NE(lookup.chosen(), nullptr);
    EXPECT_EQ(lookup.chosen()->title, "Second");
    EXPECT_EQ(lookup.Lookup("trcpy"), LookupResult::NoMatch);
    EXPECT_EQ(TextOf(LookupResult::NoMatch, "trcpy"), "Topic 'trcpy' not found.");
    EXPECT_EQ(lookup.chosen(), nullptr) << "of the look-up before";
    EXPECT_EQ(lookup.keyword(), "trcpy");
    EXPECT_EQ(lookup.Lookup("strcpyx"), LookupResult::NoMatch);
    EXPECT_EQ(notices.busyDepth, 0);
    EXPECT_EQ(notices.busyCount, 4);
}

TEST_F(HelpLookupTest, ListsTheFirst20Matches) {
    for (char name = 'A'; name < 'A' + 25; ++name)
        install(std::string(1, name), std::string(1, name), {"key"});
    EXPECT_EQ(lookup.Lookup("key"), LookupResult::SeveralMatches);
    ASSERT_EQ(lookup.matches().size(), 20u);
    EXPECT_EQ(lookup.matches().back().title, "T");
}

TEST_F(HelpLookupTest, NothingInstalledIsSaid) {
    EXPECT_EQ(lookup.Lookup("key"), LookupResult::NoIndexes);
    EXPECT_EQ(TextOf(LookupResult::NoIndexes, "key"),
              "No WinHelp files installed. Refer to 'Help Configuration' menu for more details.");
    HelpLookup impossible("\\??Oops", notices);
    EXPECT_EQ(impossible.Lookup("key"), LookupResult::NoIndexes);
}

TEST_F(HelpLookupTest, TheIndexOfAHelpFileThatHasGoneIsDeleted) {
    install("A", "First", {"key"});
    install("B", "Second", {"key"});
    disk.remove("A.HLP");
    disk.put("vHelp\\C.ZIX", "");
    disk.put("vHelp\\D.ZIXX", "of another program");
    EXPECT_EQ(lookup.Lookup("key"), LookupResult::OneMatch);
    EXPECT_FALSE(disk.has("vHelp\\A.ZIX"));
    EXPECT_FALSE(disk.has("vHelp\\C.ZIX"));
    EXPECT_EQ(disk.count("vHelp"), 2u);
    EXPECT_TRUE(notices.statuses.empty());
}

TEST_F(HelpLookupTest, AnIndexWrittenAnewIsReadAnew) {
    install("A", "First", {"key"});
    EXPECT_EQ(lookup.Lookup("other"), LookupResult::NoMatch);
    install("A", "Second", {"key", "other"});
    EXPECT_EQ(lookup.Lookup("other"), LookupResult::OneMatch);
    EXPECT_EQ(lookup.matches()[0].title, "Second");
    disk.remove("vHelp\\A.ZIX");
    EXPECT_EQ(lookup.Lookup("other"), LookupResult::NoIndexes);
}

TEST_F(HelpLookupTest, AnIndexThatCannotBeReadIsPassedOver) {
    install("A", "First", {"key"});
    install("B", "Second", {"key"});
    const LockedFile locked(disk.path("vHelp\\A.ZIX"));
    EXPECT_EQ(lookup.Lookup("key"), LookupResult::OneMatch);
    EXPECT_TRUE(disk.has("vHelp\\A.ZIX"));
}

TEST_F(HelpLookupTest, KeywordsAnywhereInALongIndexAreFound) {
    std::vector<std::string> words;
    for (int i = 0; i < 30'000; ++i)
        words.push_back("word" + std::to_string(i) + "x");
    words.push_back(std::string(70'000, 'l'));
    words.push_back("last");
    install("A", "First", words);
    for (int i = 0; i < 30'000; i += 499)
        EXPECT_EQ(lookup.Lookup("word" + std::to_string(i) + "X"), LookupResult::OneMatch) << i;
    EXPECT_EQ(lookup.Lookup("last"), LookupResult::OneMatch);
    EXPECT_EQ(lookup.Lookup("ord"), LookupResult::NoMatch);
}

TEST_F(HelpLookupTest, LinesMayEndWithoutReturnAndAtTheEndOfTheFile) {
    disk.put("A.HLP", "");
    disk.put("vHelp\\A.ZIX", "00001\n" + disk.path("A.HLP") + "\nTitle\nfirst\nlast");
    EXPECT_EQ(lookup.Lookup("last"), LookupResult::OneMatch);
    EXPECT_EQ(lookup.matches()[0], (HelpMatch{disk.path("A.HLP"), "Title"}));
    disk.put("vHelp\\A.ZIX", "00001\n" + disk.path("A.HLP"));
    EXPECT_EQ(lookup.Lookup("last"), LookupResult::NoMatch);
    EXPECT_TRUE(disk.has("vHelp\\A.ZIX"));
}

}  // namespace
}  // namespace vexa::test

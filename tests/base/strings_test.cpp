#include "base/strings.h"

#include <gtest/gtest.h>

#include "base/ascii.h"

namespace vexa {
namespace {

TEST(Strings, AreFoundByTheirRow) {
    EXPECT_EQ(LoadText(TextId::SaveChanges), "The file '%s' has been changed.\n Do you wish to save the changes?");
    EXPECT_EQ(static_cast<int>(TextId::SaveChanges), 3100);
    for (const int none : {0, 3101, 65535})
        EXPECT_EQ(LoadText(static_cast<TextId>(none)), "") << none;
}

TEST(Strings, PlacesAreFilledInTurn) {
    EXPECT_EQ(FillText("%s at %d", {"x", "7"}), "x at 7");
    EXPECT_EQ(FillText("%s%s", {"%s", "2"}), "%s2") << "what fills a place is not filled again";
    EXPECT_EQ(FillText("%s-%s", {"1"}), "1-");
    EXPECT_EQ(FillText("none", {"1", "2"}), "none");
    EXPECT_EQ(FillText("%d line%p of %d file%p", {"1", "11"}), "1 line of 11 files");
    EXPECT_EQ(FillText("100%% %x %%s 5%", {"z"}), "100%% %x %%s 5%");
    EXPECT_EQ(FillText(TextId::UnexpectedError, {"VEXA", "12"}), "Unexpected Vexa error at File: VEXA Line: 12");
}

TEST(Strings, LongWordsAreBroken) {
    EXPECT_EQ(BreakLongWords("abcd ef", 4), "abcd ef");
    EXPECT_EQ(BreakLongWords("abcde ef", 4), "abcd\ne ef");
    EXPECT_EQ(BreakLongWords("abcdefghi\nabcd\n", 4), "abcd\nefgh\ni\nabcd\n");
}

TEST(Ascii, LeadingIntegersStopAtTheNearestNumber) {
    EXPECT_EQ(LeadingInteger("99999999999999999999999"), INT32_MAX);
    EXPECT_EQ(LeadingInteger("-99999999999999999999999"), INT32_MIN);
    EXPECT_EQ(LeadingInteger("-2147483648"), INT32_MIN);
    EXPECT_EQ(LeadingInteger(""), 0);
}

TEST(Ascii, OnlyAsciiLettersLoseTheirCase) {
    EXPECT_TRUE(EqualIgnoringCase("aZ[", "Az["));
    EXPECT_FALSE(EqualIgnoringCase("[", "{"));
    EXPECT_FALSE(EqualIgnoringCase("\xC4", "\xE4"));
    EXPECT_TRUE(LessIgnoringCase("a.Z", "B"));
    EXPECT_TRUE(LessIgnoringCase("z", "\xC4"));
}

}  // namespace
}  // namespace vexa

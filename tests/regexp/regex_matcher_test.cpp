#include "regexp/regex_matcher.h"

#include <gtest/gtest.h>

#include <cstring>

namespace vexa::test {
namespace {

TEST(RegexMatcher, KeepsTheLastMatch) {
    RegexMatcher matcher(1);
    EXPECT_EQ(matcher.match("x for y", "\\<for\\>"), 1);
    EXPECT_STREQ(matcher.text(), "for");
    EXPECT_EQ(matcher.length(), 3);
    EXPECT_EQ(matcher.offset(), 2);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: ");

    EXPECT_EQ(matcher.match("format", "\\<for\\>"), 0);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: ");
    EXPECT_EQ(matcher.match("for", "(for"), 0);
    EXPECT_EQ(matcher.match(nullptr, "for"), 0);
    EXPECT_STREQ(matcher.text(), "for") << "nothing but a match changes it";
    EXPECT_EQ(matcher.length(), 3);
    EXPECT_EQ(matcher.offset(), 2);

    EXPECT_EQ(matcher.match("abc", "$"), 1);
    EXPECT_STREQ(matcher.text(), "");
    EXPECT_EQ(matcher.length(), 0);
    EXPECT_EQ(matcher.offset(), 3);
}

TEST(RegexMatcher, ErrorTextIsOneForAll) {
    RegexMatcher one(1);
    RegexMatcher other(1);
    EXPECT_EQ(one.match("a", "a**"), 0);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: Unexpected Vexa error at File: VXEREG01 Line: 162");
    EXPECT_EQ(other.match("a", "b"), 0);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: ");
    EXPECT_EQ(one.match("a", "a**"), 0) << "a pattern that was refused is refused again";
    EXPECT_STREQ(RegexErrorText(), "Regex Error: Unexpected Vexa error at File: VXEREG01 Line: 162");
    for (const auto& [subject, pattern] :
         {std::pair<const char*, const char*>{nullptr, "a"}, {"a", nullptr}, {nullptr, nullptr}}) {
        EXPECT_EQ(other.match(subject, pattern), 0);
        EXPECT_STREQ(RegexErrorText(), "Regex Error: Bad command line arguments supplied.");
    }
    EXPECT_EQ(one.match("a", "a"), 1);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: ");
}

TEST(RegexMatcher, LongMatchesAreCutButTheirOffsetIsExact) {
    RegexMatcher matcher(1);
    for (const std::size_t length : {299u, 300u, 301u, 5000u}) {
        const std::string subject = std::string(1000, '-') + std::string(length, 'x') + "y";
        EXPECT_EQ(matcher.match(subject.c_str(), "x+"), 1);
        const std::size_t kept = std::min<std::size_t>(length, 300);
        EXPECT_EQ(matcher.length(), static_cast<std::int32_t>(kept));
        EXPECT_EQ(matcher.text(), std::string(kept, 'x'));
        EXPECT_EQ(matcher.offset(), 1000);
    }
}

TEST(RegexMatcher, CaseModeIsOneForAllAndTakesEffectAtOnce) {
    RegexMatcher matcher(1);
    EXPECT_TRUE(matcher.caseSensitive());
    EXPECT_EQ(matcher.match("xABC", "abc"), 0);
    matcher.setCaseMode(0);
    EXPECT_FALSE(matcher.caseSensitive());
    EXPECT_EQ(matcher.match("xABC", "abc"), 1) << "the same pattern in the other mode";
    {
        RegexMatcher other(1);
        EXPECT_TRUE(matcher.caseSensitive());
        EXPECT_EQ(matcher.match("xABC", "abc"), 0);
        other.setCaseMode(2);
    }
    EXPECT_FALSE(matcher.caseSensitive());
    EXPECT_EQ(matcher.match("xABC", "abc"), 1);
    EXPECT_FALSE(RegexMatcher(-1).caseSensitive());
    EXPECT_TRUE(RegexMatcher(1).caseSensitive());
}

TEST(RegexMatcher, TakesLinesOfKnownLength) {
    using namespace std::string_view_literals;
    RegexMatcher matcher(1);
    EXPECT_EQ(matcher.match("ab ac"sv, "a.$"), 1);
    EXPECT_EQ(matcher.offset(), 3);
    EXPECT_EQ(matcher.match("ab\0ac"sv, "c"), 0) << "a NUL ends a line";
    EXPECT_EQ(matcher.match(std::string_view(), "a"), 0);
    EXPECT_STREQ(RegexErrorText(), "Regex Error: Bad command line arguments supplied.");
}

// The pattern is compared by what it says, not by where it stands.
TEST(RegexMatcher, PatternsInOneBufferAreToldApart) {
    RegexMatcher matcher(1);
    char pattern[] = "ab";
    EXPECT_EQ(matcher.match("ab", pattern), 1);
    pattern[1] = 'c';
    EXPECT_EQ(matcher.match("ab", pattern), 0);
    EXPECT_EQ(matcher.match("ac", pattern), 1);
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(matcher.match("xxa", pattern), 0);
        EXPECT_EQ(matcher.match("xac", pattern), 1);
        EXPECT_EQ(matcher.offset(), 1);
    }
}

}  // namespace
}  // namespace vexa::test

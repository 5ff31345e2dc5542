// What the engine finds, as a table.
#include <gtest/gtest.h>

#include "reference_check.h"

namespace vexa::test {
namespace {

struct Case {
    const char* pattern;
    const char* subject;
    const char* exact;       // offset and end of the match, then of the groups; or "no"
    const char* ignoreCase;  // the same with letter case ignored
};

const Case kCases[] = {
    // literals, and where they are found
    {"", "abc", "0-0", "0-0"},
    {"", "", "0-0", "0-0"},
    {"b", "abc", "1-2", "1-2"},
    {"bcd", "abcbcd", "3-6", "3-6"},
    {"Abc", "xabcx", "no", "1-4"},
    {"abc", "ab", "no", "no"},
    {"\xE9", "\xC9\xE9", "1-2", "1-2"},
    {"a{2}", "aa{2}", "1-5", "1-5"},
    {"]-{", "a]-{", "1-4", "1-4"},

    // any character, and classes
    {".", "", "no", "no"},
    {".", "\xFF", "0-1", "0-1"},
    {"a.c", "abbac abc", "6-9", "6-9"},
    {"[]a]", "x]", "1-2", "1-2"},
    {"[]a]", "xA", "no", "1-2"},
    {"[^]a]", "]ab", "2-3", "2-3"},
    {"[a-]", "x-", "1-2", "1-2"},
    {"[-a]", "x-", "1-2", "1-2"},
    {"[^-a]", "-ax", "2-3", "2-3"},
    {"[A-C]", "xb", "no", "1-2"},
    {"[^A-C]", "bAd", "0-1", "2-3"},
    {"[a-c-e]", "-d", "1-2", "1-2"},
    {"[b-b]", "ab", "1-2", "1-2"},
    {"[\x80-\xFF]", "a\xE9", "1-2", "1-2"},
    {"[*.$^(|\\]+", "a*.$^(|\\b", "1-8", "1-8"},
    {"[^x]", "", "no", "no"},

    // start and end of the subject, anywhere in a pattern
    {"^b", "ab", "no", "no"},
    {"^a", "ab", "0-1", "0-1"},
    {"^", "ab", "0-0", "0-0"},
    {"$", "abc", "3-3", "3-3"},
    {"c$", "cbc", "2-3", "2-3"},
    {"^$", "", "0-0", "0-0"},
    {"^$", "a", "no", "no"},
    {"a^b", "ab", "no", "no"},
    {"x*^a", "xa", "no", "no"},
    {"x*^a", "a", "0-1", "0-1"},
    {"(^|,)b", "ab,b", "2-4 1:2-3", "2-4 1:2-3"},
    {"a$b", "a$b", "no", "no"},
    {"b|^a", "xab", "2-3", "2-3"},

    // words: the end looks at the next character alone
    {"\\<for\\>", "for(i", "0-3", "0-3"},
    {"\\<for\\>", "x for y", "2-5", "2-5"},
    {"\\<for\\>", "format", "no", "no"},
    {"\\<for\\>", "xfor", "no", "no"},
    {"\\<for\\>", "for_", "no", "no"},
    {"\\<[0-9]", "a1 1", "3-4", "3-4"},
    {"\\>", "ab", "2-2", "2-2"},
    {"\\>", "  ", "0-0", "0-0"},
    {"a \\> b", "a  b", "0-4", "0-4"},
    {"\\<", "", "no", "no"},
    {"\\<\xE9", "\xE9", "no", "no"},
    {"\\<a",
     "\xE9"
     "a",
     "1-2", "1-2"},

    // a backslash makes the next character literal
    {"\\.", "a.b", "1-2", "1-2"},
    {"a\\*b", "aab a*b", "4-7", "4-7"},
    {"\\.*", "..a", "0-2", "0-2"},
    {"a\\.*", "a..", "0-3", "0-3"},
    {"a\\.b", "a.b", "0-3", "0-3"},
    {"\\n\\t", "nt", "0-2", "0-2"},
    {"\\\\", "a\\", "1-2", "1-2"},
    {"\\(a\\)", "(a)", "0-3", "0-3"},
    {"a\\>b", "ab", "no", "no"},
    {"\\|", "a|", "1-2", "1-2"},
    {"a\\tb", "a\tb atb", "4-7", "4-7"},

    // repetition: the longest first, of the last character alone
    {"x*", "abc", "0-0", "0-0"},
    {"abc*", "xabccc", "1-6", "1-6"},
    {"ab+", "a abbb", "2-6", "2-6"},
    {"ab?c", "abbc ac", "5-7", "5-7"},
    {"a.*c", "abcbcb", "0-5", "0-5"},
    {"[0-9]+", "ab123", "2-5", "2-5"},
    {"a+a", "aaaa", "0-4", "0-4"},
    {".*x", "axbxc", "0-4", "0-4"},
    {"a?a?aa", "aa", "0-2", "0-2"},
    {"(a*)?", "aa", "0-2 1:0-2", "0-2 1:0-2"},
    {"[-/]+[lL]+[ ]*[0-9]+", "x /L 7", "2-6", "2-6"},

    // a single character is counted as it is written, whatever the case mode
    {"a*b", "AAb", "2-3", "2-3"},
    {"A+", "aa", "no", "no"},
    {"b*c", "BBc", "2-3", "2-3"},
    {"b*C", "bbc", "no", "0-3"},
    {"[a]*b", "AAb", "2-3", "0-3"},
    {"(a)*b", "AAb", "2-3", "0-3 1:1-2"},
    {"a?b", "AAb", "2-3", "1-3"},
    {"x+Y", "xxy", "no", "0-3"},

    // branches: the first that leads to a match
    {"a|ab", "ab", "0-1", "0-1"},
    {"ab|a", "ab", "0-2", "0-2"},
    {"b\na", "ab", "0-1", "0-1"},
    {"|a", "a", "0-0", "0-0"},
    {"x(a|ab)c", "xabc", "0-4 1:1-3", "0-4 1:1-3"},
    {"x()y", "xy", "0-2 1:1-1", "0-2 1:1-1"},
    {"struct|union|enum", "a union", "2-7", "2-7"},
    {"a|b|c|d|e|f|g|h|i|j", "xyj", "2-3", "2-3"},

    // groups: the last time round counts, and what a lost branch recorded does not
    {"(a)(b)", "ab", "0-2 1:0-1 2:1-2", "0-2 1:0-1 2:1-2"},
    {"(a|b)*", "abab", "0-4 1:3-4", "0-4 1:3-4"},
    {"(a|b)+c", "xabc", "1-4 1:2-3", "1-4 1:2-3"},
    {"((a)|b)*", "ab", "0-2 1:1-2 2:0-1", "0-2 1:1-2 2:0-1"},
    {"(a)|b", "b", "0-1", "0-1"},
    {"((a)x|ab)", "ab", "0-2 1:0-2", "0-2 1:0-2"},
    {"(a+)(a*)", "aaa", "0-3 1:0-3 2:3-3", "0-3 1:0-3 2:3-3"},
    {"(ab|a)(bc)?", "abc", "0-2 1:0-2", "0-2 1:0-2"},
    {"(ab|a)(bc)?$", "abc", "0-3 1:0-1 2:1-3", "0-3 1:0-1 2:1-3"},
    {"([a-z]+)=([0-9]+)", "x1 ab=12", "3-8 1:3-5 2:6-8", "3-8 1:3-5 2:6-8"},
    {"(((((((((a)))))))))", "a", "0-1 1:0-1 2:0-1 3:0-1 4:0-1 5:0-1 6:0-1 7:0-1 8:0-1 9:0-1",
     "0-1 1:0-1 2:0-1 3:0-1 4:0-1 5:0-1 6:0-1 7:0-1 8:0-1 9:0-1"},
};

// The reference is held against the table too: it has no other judge.
TEST(RegExpCases, FindWhatTheyShould) {
    for (const Case& one : kCases) {
        for (const bool ignoreCase : {false, true}) {
            SCOPED_TRACE(std::string(one.pattern) + " on " + one.subject + (ignoreCase ? ", letter case ignored" : ""));
            const char* expected = ignoreCase ? one.ignoreCase : one.exact;
            SetRegExpIgnoreCase(ignoreCase);
            EXPECT_EQ(DifferenceInMatching(one.pattern, one.subject, expected), "");
            ReferenceMatcher reference(one.pattern, ignoreCase);
            EXPECT_EQ(Describe(reference, reference.match(one.subject, 0, 100000)), expected);
        }
    }
    SetRegExpIgnoreCase(false);
}

struct Refusal {
    const char* pattern;
    const char* message;
};

const Refusal kRefusals[] = {
    {nullptr, "NULL argument"},
    {"((((((((((a))))))))))", "too many ()"},
    {"(a", "unmatched ()"},
    {"a)", "unmatched ()"},
    {"(a))", "unmatched ()"},
    {"(a*)*", "*+ operand could be empty"},
    {"(a|)+", "*+ operand could be empty"},
    {"^*", "*+ operand could be empty"},
    {"\\<+", "*+ operand could be empty"},
    {"a**", "nested *?+"},
    {"a?+", "nested *?+"},
    {"(a)+?", "nested *?+"},
    {"[z-a]", "invalid [] range"},
    {"[]-A]", "invalid [] range"},
    {"[a", "unmatched []"},
    {"[]", "unmatched []"},
    {"[^]", "unmatched []"},
    {"[a-", "unmatched []"},
    {"*a", "?+* follows nothing"},
    {"(+a)", "?+* follows nothing"},
    {"a|?", "?+* follows nothing"},
    {"a\\", "trailing \\\\"},
    {"\\", "trailing \\\\"},
    {"(a\\", "trailing \\\\"},
};

TEST(RegExpCases, AreRefusedWithTheirMessages) {
    const RegExpErrorHook hook = SetRegExpErrorHook([](const char* message) { lastRegExpError += message; });
    for (const Refusal& one : kRefusals) {
        lastRegExpError.clear();
        EXPECT_EQ(RegExp::Compile(one.pattern), nullptr);
        EXPECT_EQ(lastRegExpError, one.message) << (one.pattern != nullptr ? one.pattern : "null");
    }
    SetRegExpErrorHook(hook);
}

TEST(RegExpCases, GoodPatternsReportNothing) {
    const RegExpErrorHook hook = SetRegExpErrorHook([](const char* message) { lastRegExpError += message; });
    lastRegExpError.clear();
    for (const char* pattern : {"(((((((((a)))))))))", "(a*)?", "(a|b)*", "a||b", "()", "[]-]", "(^)?", "a\\*\\?"})
        EXPECT_NE(RegExp::Compile(pattern), nullptr) << pattern;
    EXPECT_EQ(lastRegExpError, "");
    SetRegExpErrorHook(hook);
}

}  // namespace
}  // namespace vexa::test

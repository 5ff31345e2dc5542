// What the engine finds: the tables of the folder cases/.
#include <gtest/gtest.h>

#include "reference_check.h"
#include "support/case_files.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "regexp_cases.inc"
};

// The reference is held against the table too: it has no other judge.
TEST(RegExpCases, FindWhatTheyShould) {
    for (const Cells& row : RowsOf(kFiles, "matches")) {
        const std::string& pattern = row.at(0);
        const std::string& subject = row.at(1);
        for (const bool ignoreCase : {false, true}) {
            SCOPED_TRACE(pattern + " on " + subject + (ignoreCase ? ", letter case ignored" : ""));
            const std::string& expected = ignoreCase ? row.back() : row.at(2);
            SetRegExpIgnoreCase(ignoreCase);
            EXPECT_EQ(DifferenceInMatching(pattern, subject, expected), "");
            ReferenceMatcher reference(pattern, ignoreCase);
            EXPECT_EQ(Describe(reference, reference.match(subject, 0, 100000)), expected);
        }
    }
    SetRegExpIgnoreCase(false);
}

TEST(RegExpCases, AreRefusedWithTheirMessages) {
    const RegExpErrorHook hook = SetRegExpErrorHook([](const char* message) { lastRegExpError += message; });
    for (const Cells& row : RowsOf(kFiles, "refusals")) {
        lastRegExpError.clear();
        EXPECT_EQ(RegExp::Compile(row.at(0).c_str()), nullptr);
        EXPECT_EQ(lastRegExpError, row.at(1)) << row.at(0);
    }
    lastRegExpError.clear();
    EXPECT_EQ(RegExp::Compile(nullptr), nullptr);
    EXPECT_EQ(lastRegExpError, "NULL argument");
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

// What would keep plain backtracking busy for ever, or overflow its stack, is answered rightly.
#include <gtest/gtest.h>

#include "reference_check.h"

namespace vexa::test {
namespace {

struct Result {
    bool matches;
    std::ptrdiff_t offset;
    std::ptrdiff_t length;
};

Result Find(const char* pattern, const std::string& subject) {
    const auto program = RegExp::Compile(pattern);
    if (!RegExp::Execute(program.get(), subject.c_str())) return {false, 0, 0};
    return {true, program->start(0) - subject.c_str(), program->end(0) - program->start(0)};
}

TEST(RegExpLimits, BadPatternsAreAnswered) {
    const char* const kBadPatterns[] = {"(x+x+)+[yw]",  "(x+)+[yw]",       "(x|xx)+[yw]", "(x|x|x)*[yw]",
                                        "((x+)+)+[yw]", "x*x*x*x*[yw]",    "(xx?)*[yw]",  "(.*x)*[yw]",
                                        "(.+.+)+[yw]",  "(xx*)*(xx*)*[yw]"};
    for (const char* pattern : kBadPatterns) {
        for (const std::size_t length : {40u, 290u, 100000u, 1000000u}) {
            const std::string line(length, 'x');
            EXPECT_FALSE(Find(pattern, line).matches) << pattern << length;
            const Result result = Find(pattern, "z" + line + "y");
            EXPECT_TRUE(result.matches) << pattern << length;
            EXPECT_EQ(result.offset + result.length, static_cast<std::ptrdiff_t>(length + 2)) << pattern << length;
        }
    }
}

TEST(RegExpLimits, GroupsOfLongLoopsAreTheLastOnes) {
    std::string line;
    for (int i = 0; i < 200000; ++i)
        line += i % 3 == 0 ? "ab" : "c";
    const auto program = RegExp::Compile("((ab)|(c))*");
    ASSERT_TRUE(RegExp::Execute(program.get(), line.c_str()));
    EXPECT_EQ(program->end(0), line.c_str() + line.size());
    EXPECT_EQ(program->start(1), line.c_str() + line.size() - 1);
    EXPECT_EQ(program->start(2), line.c_str() + line.rfind("ab"));
    EXPECT_EQ(program->end(3), line.c_str() + line.size());
}

}  // namespace
}  // namespace vexa::test

// The bytes of programs, the fields that speed a search up, and what becomes of damaged programs.
#include <gtest/gtest.h>

#include "reference_check.h"
#include "regexp/regexp_program.h"
#include "support/case_files.h"

namespace vexa::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr CaseFile kFiles[] = {
#include "regexp_cases.inc"
};

Bytes ProgramOf(const char* pattern) {
    const auto program = RegExp::Compile(pattern);
    return {program->program().begin(), program->program().end()};
}

// Collects what the engine reports while it lives.
class Reports {
  public:
    Reports() : hook_(SetRegExpErrorHook([](const char* message) { text_ += std::string(message) + '\n'; })) {
        text_ = {};
    }
    ~Reports() { SetRegExpErrorHook(hook_); }
    Reports(const Reports&) = delete;
    Reports& operator=(const Reports&) = delete;

    static std::string taken() { return std::exchange(text_, {}); }

  private:
    static inline std::string text_;
    RegExpErrorHook hook_;
};

TEST(RegExpProgram, HasItsNodesInPlace) {
    using namespace regexp;
    EXPECT_EQ(ProgramOf(""), (Bytes{156, BRANCH, 0, 6, NOTHING, 0, 3, END, 0, 0}));
    EXPECT_EQ(ProgramOf("abc*"),
              (Bytes{156, BRANCH, 0, 17, EXACTLY, 0, 6, 'a', 'b', 0, STAR, 0, 8, EXACTLY, 0, 0, 'c', 0, END, 0, 0}));
    EXPECT_EQ(ProgramOf("^[^]b-d]+$"), (Bytes{156, BRANCH, 0,   20,  BOL, 0, 3,   PLUS, 0, 11,  ANYBUT, 0,
                                              0,   ']',    'b', 'c', 'd', 0, EOL, 0,    3, END, 0,      0}));
    EXPECT_EQ(ProgramOf("a|."), (Bytes{156, BRANCH, 0, 8, EXACTLY, 0, 11, 'a', 0, BRANCH, 0, 6, ANY, 0, 3, END, 0, 0}));
    EXPECT_EQ(ProgramOf("\\<a?\\>"), (Bytes{156, BRANCH, 0, 23, WORDA,   0, 3, BRANCH, 0, 8, EXACTLY, 0, 8, 'a',
                                            0,   BRANCH, 0, 3,  NOTHING, 0, 3, WORDZ,  0, 3, END,     0, 0}));
    EXPECT_EQ(ProgramOf("(a)*"),
              (Bytes{156, BRANCH,    0, 29, BRANCH, 0, 20, OPEN + 1, 0, 3, BRANCH,  0, 8, EXACTLY, 0, 5, 'a',
                     0,   CLOSE + 1, 0, 3,  BACK,   0, 17, BRANCH,   0, 3, NOTHING, 0, 3, END,     0, 0}));
    EXPECT_EQ(ProgramOf("(.)+"),
              (Bytes{156,    BRANCH, 0, 27,   OPEN + 1, 0,  3,      BRANCH, 0, 6,       ANY, 0, 3,   CLOSE + 1, 0, 3,
                     BRANCH, 0,      6, BACK, 0,        15, BRANCH, 0,      3, NOTHING, 0,   3, END, 0,         0}));
}

TEST(RegExpProgram, KnowsWhatEveryMatchHas) {
    for (const Cells& row : RowsOf(kFiles, "fields")) {
        const auto program = RegExp::Compile(row.at(0).c_str());
        if (!program) continue;
        const bool hasMust = row.at(3) != "-";
        EXPECT_EQ(program->firstCharacter(), row.at(1) == "-" ? '\0' : row.at(1)[0]) << row.at(0);
        EXPECT_EQ(program->anchored(), row.at(2) == "anchored") << row.at(0);
        EXPECT_EQ(program->mustLength(), hasMust ? row.at(3).size() : 0) << row.at(0);
        EXPECT_STREQ(program->mustString(), hasMust ? row.at(3).c_str() : nullptr) << row.at(0);
    }
}

TEST(RegExpProgram, IsShorterThanItsLimit) {
    Reports reports;
    const std::size_t around = ProgramOf("a").size() - 1;
    const auto literal = [&](std::size_t size) { return std::string(size - around, 'a'); };
    const auto largest = RegExp::Compile(literal(32766).c_str());
    ASSERT_NE(largest, nullptr);
    EXPECT_EQ(largest->program().size(), 32766u);
    EXPECT_TRUE(RegExp::Execute(largest.get(), ("b" + literal(32766)).c_str()));
    EXPECT_EQ(RegExp::Compile(literal(32767).c_str()), nullptr);
    EXPECT_EQ(reports.taken(), "regexp too big\n");
    EXPECT_EQ(RegExp::FromProgram(Bytes(32767, 156)), nullptr);
    EXPECT_EQ(reports.taken(), "regexp too big\n");
}

TEST(RegExpProgram, LongPatternsAreCompiledOrRefused) {
    Reports reports;
    for (const char* part : {"(", ")", "a?", "a|", "|", "[a-z]", "(a)", "a*", "\\<", "[", "\\", "(a|"}) {
        std::string pattern;
        while (pattern.size() < 40000)
            pattern += part;
        if (const auto program = RegExp::Compile(pattern.c_str())) RegExp::Execute(program.get(), "aaaa");
        pattern.resize(5000);
        if (const auto program = RegExp::Compile(pattern.c_str())) {
            EarnHints(*program);
            RegExp::Execute(program.get(), "aaaa");
        }
    }
}

TEST(RegExpProgram, NeedsProgramAndSubject) {
    Reports reports;
    const auto program = RegExp::Compile("a");
    EXPECT_FALSE(RegExp::Execute(nullptr, "a"));
    EXPECT_EQ(reports.taken(), "NULL parameter\n");
    EXPECT_FALSE(RegExp::Execute(program.get(), nullptr));
    EXPECT_EQ(reports.taken(), "NULL parameter\n");
}

TEST(RegExpProgram, LinesEndAtTheirFirstNul) {
    using namespace std::string_view_literals;
    for (const char* pattern : {"b", "b$", "[b]", "x*b", "b|c", ".*b", "[a-z]*b", "^ab|b", "\\<b"}) {
        const auto program = RegExp::Compile(pattern);
        for (int i = 0; i < 10; ++i) {
            EXPECT_FALSE(RegExp::Execute(program.get(), "aaaa\0b"sv)) << pattern;
            EXPECT_FALSE(RegExp::Execute(program.get(), "aaaaaaaaaaaaaaaaaaaaaaaaaaaaa\0b                       b"sv))
                << pattern;
            EXPECT_TRUE(RegExp::Execute(program.get(), "aa b\0b"sv)) << pattern;
            EXPECT_EQ(*program->end(0), '\0') << pattern;
        }
    }
}

// A byte of the program of a pattern is changed, and what was damaged is told when execution gets there.
TEST(RegExpProgram, DamageIsReported) {
    struct Damage {
        const char* pattern;
        std::size_t offset;
        std::uint8_t byte;
        const char* subject;
        const char* reported;
        bool matches;
    };
    const Damage kDamages[] = {
        {"abc", 0, 0, "abc", "corrupted program\n", false},
        {"abc", 0, 155, "abc", "corrupted program\n", false},
        {"abc", 4, 40, "abc", "memory corruption\n", false},
        {"abc", 4, 255, "abc", "memory corruption\n", false},
        {"abc", 4, 20, "abc", "memory corruption\n", false},
        {"abc", 4, 30, "abc", "memory corruption\n", false},
        {"abc", 4, 14, "abc", "memory corruption\n", false},
        {"abc", 6, 0, "abc", "corrupted pointers\n", false},     // no next node
        {"abc", 6, 0, "xyz", "", false},                         // which is needed after a match alone
        {"abc", 5, 0x7F, "abc", "corrupted pointers\n", false},  // far behind the program
        {"abc", 3, 0, "abc", "corrupted pointers\n", false},     // a branch without a next node
        {"[a]*b", 7, 1, "b", "internal foulup\n", true},         // a loop over the start of the subject
        {"[a]+b", 7, 1, "ab", "internal foulup\ninternal foulup\ninternal foulup\n", false},
        {"[a]*b", 9, 0, "b", "", true},  // what a loop's operand links to plays no part
    };
    Reports reports;
    for (const Damage& one : kDamages) {
        Bytes bytes = ProgramOf(one.pattern);
        bytes.at(one.offset) = one.byte;
        const auto program = RegExp::FromProgram(bytes);
        EXPECT_EQ(RegExp::Execute(program.get(), one.subject), one.matches) << one.pattern << one.offset;
        EXPECT_EQ(reports.taken(), one.reported) << one.pattern << " " << one.offset;
    }
    const auto reported = [&](const Bytes& bytes) {
        EXPECT_FALSE(RegExp::Execute(RegExp::FromProgram(bytes).get(), "a"));
        return reports.taken();
    };
    EXPECT_EQ(reported({}), "corrupted program\n");
    EXPECT_EQ(reported({156}), "corrupted pointers\n");
    EXPECT_EQ(reported({156, regexp::EXACTLY, 0, 6, 'a', 'a', 'a'}), "memory corruption\n")
        << "no NUL ends the literal";
    EXPECT_EQ(reported({156, regexp::STAR, 0, 6}), "memory corruption\n") << "no operand";
}

// Rings of nodes that take no characters would keep plain backtracking busy for ever.
TEST(RegExpProgram, RingsEnd) {
    using namespace regexp;
    Reports reports;
    const Bytes kRings[] = {
        {156, NOTHING, 0, 3, BACK, 0, 3, END, 0, 0},
        {156, BOL, 0, 3, BACK, 0, 3, END, 0, 0},
        {156, OPEN + 1, 0, 3, BACK, 0, 3, END, 0, 0},
        {156, BRANCH, 0, 6, BACK, 0, 3, BRANCH, 0, 6, BACK, 0, 9, END, 0, 0},
        {156, STAR, 0, 6, ANY, 0, 0, BACK, 0, 6, END, 0, 0},
    };
    for (const Bytes& ring : kRings)
        EXPECT_FALSE(RegExp::Execute(RegExp::FromProgram(ring).get(), "aaaa"));
}

}  // namespace
}  // namespace vexa::test

// The engine finds what plain backtracking finds, on random patterns and subjects that are always the same.
#include <gtest/gtest.h>

#include <random>

#include "reference_check.h"

namespace vexa::test {
namespace {

class RandomText {
  public:
    std::size_t below(std::size_t limit) { return engine_() % limit; }

    // A pattern that is mostly well-formed: parts with and without quantifiers, groups and branches.
    std::string pattern(int depth = 0) {
        static const char* const kAtoms[] = {"a",   "b",   "A",   "B",    "ab",           "aB",     ".",     "^",
                                             "$",   "\\<", "\\>", "[ab]", "[^a]",         "[A-b]",  "[^ _]", "\\a",
                                             "\\.", " ",   "_",   "[]-]", "[b\xE0-\xFF]", "[a-b-c]"};
        static const char* const kQuantifiers[] = {"", "", "", "", "*", "+", "?"};
        std::string text;
        for (std::size_t pieces = below(4) + (depth == 0 ? 1 : 0); pieces > 0; --pieces) {
            text += below(4) == 0 && depth < 3 ? "(" + pattern(depth + 1) + ")" : kAtoms[below(std::size(kAtoms))];
            text += kQuantifiers[below(std::size(kQuantifiers))];
            if (below(6) == 0) text += '|';
        }
        return text;
    }

    std::string from(std::string_view characters, std::size_t mostCharacters) {
        std::string text;
        for (std::size_t length = below(mostCharacters + 1); length > 0; --length)
            text += characters[below(characters.size())];
        return text;
    }

  private:
    std::mt19937 engine_{19951};
};

TEST(RegExpProperty, EqualsPlainBacktracking) {
    RandomText random;
    for (int i = 0; i < 40000; ++i) {
        const std::string pattern = random.pattern();
        const std::string subject = random.from("aabbABc_ .", 12);
        const bool ignoreCase = random.below(2) == 0;
        const std::size_t from = random.below(4) == 0 ? random.below(8) : 0;
        ASSERT_EQ(DifferenceFromReference(pattern, subject, ignoreCase, from), "")
            << pattern << " on " << subject << ignoreCase << " from " << from;
    }
}

// Long enough for the vector instructions, with the few characters that can match far apart.
TEST(RegExpProperty, EqualsPlainBacktrackingInLongerLines) {
    RandomText random;
    for (int i = 0; i < 10000; ++i) {
        const std::string pattern = random.pattern();
        std::string subject;
        while (subject.size() < 60)
            subject += random.from("ab\xE9", 3) + std::string(random.below(30), random.below(2) == 0 ? '.' : 'B');
        const std::size_t from = random.below(4) == 0 ? random.below(subject.size()) : 0;
        ASSERT_EQ(DifferenceFromReference(pattern, subject, random.below(2) == 0, from), "")
            << pattern << " on " << subject << " from " << from;
    }
}

TEST(RegExpProperty, RefusesWhatTheGrammarRefuses) {
    RandomText random;
    for (int i = 0; i < 40000; ++i) {
        const std::string pattern = random.from("ab()[]^$.*+?|\\-<>\n", 10);
        const std::string subject = random.from("ab()[]^$.*+?|\\-<>\n\xE9", 8);
        ASSERT_EQ(DifferenceFromReference(pattern, subject, random.below(2) == 0), "") << pattern << " on " << subject;
    }
}

}  // namespace
}  // namespace vexa::test

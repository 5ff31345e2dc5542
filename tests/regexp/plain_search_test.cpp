#include "regexp/plain_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

#include "base/ascii.h"

namespace vexa::test {
namespace {

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), LowerAscii);
    return text;
}

// Whatever the length and place of the literal, and in memory of just the text's size, so that nothing beyond it is
// read.
TEST(PlainSearch, FindsWhatTheStandardLibraryFinds) {
    std::mt19937 random(7);
    const std::string_view kCharacters = "abAB@`[{\xE1\xC1";
    const auto text = [&](std::size_t size, std::size_t letters) {
        std::string made;
        while (made.size() < size)
            made += kCharacters[random() % letters];
        return made;
    };
    for (const Instructions most : {Instructions::Plain, Instructions::Sse2}) {
        for (int i = 0; i < 20000; ++i) {
            const std::size_t letters = i % 2 == 0 ? 2 : kCharacters.size();
            const std::string line = text(random() % 80, letters);
            const std::string literal = text(random() % (i % 3 == 0 ? 20 : 4), letters);
            const std::unique_ptr<char[]> exact(new char[line.size()]);
            std::ranges::copy(line, exact.get());
            const auto offset = [&](LetterCase letterCase) {
                const char* found = PlainSearch(literal, letterCase, most).find({exact.get(), line.size()});
                return found != nullptr ? static_cast<std::size_t>(found - exact.get()) : std::string::npos;
            };
            ASSERT_EQ(offset(LetterCase::Sensitive), line.find(literal)) << line << " " << literal;
            ASSERT_EQ(offset(LetterCase::Ignored), Lower(line).find(Lower(literal))) << line << " " << literal;
        }
    }
}

TEST(PlainSearch, FoldsLettersAlone) {
    const auto found = [](std::string_view literal, std::string_view line) {
        return PlainSearch(literal, LetterCase::Ignored).find(line) != nullptr;
    };
    EXPECT_TRUE(found("xYz", "..XyZ.."));
    EXPECT_FALSE(found("@", "`"));
    EXPECT_FALSE(found("[", "{"));
    EXPECT_FALSE(found("\xC4", "\xE4"));
    EXPECT_TRUE(found("", ""));
}

}  // namespace
}  // namespace vexa::test

#include "base/utf8.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

using namespace std::string_literals;

TEST(Utf8, BecomesTheCodePageOrStaysAsItIs) {
    struct Case {
        std::string text;
        std::optional<std::string> ansi;
    };
    const Case cases[] = {
        {"", std::nullopt},
        {"plain text\t\x7F\0"s, std::nullopt},
        {"In function \xE2\x80\x98main\xE2\x80\x99: \xE2\x80\x9Cx\xE2\x80\x9D", "In function 'main': \"x\""},
        {"gr\xC3\xBC\xC3\x9F\0e"s, "gr\xFC\xDF\0e"s},
        {"\xE4\xB8\xAD \xF0\x9F\x98\x80", "? ?"},
        {"gr\xFC\xDF", std::nullopt},          // the code page already
        {"\xC3\xBC then \xFC", std::nullopt},  // only in part
        {"cut \xE2\x80", std::nullopt},        // ends too early
        {"\x80", std::nullopt},                // begins too late
        {"\xC0\xAF", std::nullopt},            // longer than it need be
        {"\xE0\x80\xAF", std::nullopt},        //
        {"\xED\xA0\x80", std::nullopt},        // half of a pair
        {"\xF4\x90\x80\x80", std::nullopt},    // above all characters
        {"12345678\xC3\xA4", "12345678\xE4"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(AnsiOfUtf8(c.text), c.ansi) << c.text;
}

TEST(Utf8, ACharacterIsNotCutApart) {
    struct Case {
        std::string_view text;
        std::size_t limit;
        std::size_t cut;
    };
    const Case cases[] = {
        {"abc", 5, 3},
        {"abc", 2, 2},
        {"a\xC3\xBC", 2, 1},
        {"a\xC3\xBC"
         "b",
         3, 3},
        {"\xE2\x80\x98x", 2, 0},
        {"\xF0\x9F\x98\x80", 3, 0},
        {"\x80\x80\x80\x80\x80", 4, 4},
        {"ab\xFC\xA0", 3, 3},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CutOfUtf8(c.text, c.limit), c.cut) << c.text << c.limit;
}

}  // namespace
}  // namespace vexa

// Letter case, digits and blanks of the ASCII characters alone. Characters above 127 are told apart as bytes, so that
// results do not depend on the code page.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vexa {

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, LowerAscii, LowerAscii);
}

// Order of the bytes with letter case ignored.
constexpr bool LessIgnoringCase(std::string_view a, std::string_view b) {
    constexpr auto key = [](char c) { return static_cast<unsigned char>(LowerAscii(c)); };
    return std::ranges::lexicographical_compare(a, b, {}, key, key);
}

constexpr std::string_view TrimBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// The number that the text begins with, after blanks and a sign; 0 for other text, and the nearest 32-bit number for
// one that is too large.
constexpr std::int32_t LeadingInteger(std::string_view text) {
    text = TrimBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::int64_t number = 0;
    for (std::size_t i = 0; i < text.size() && IsDigit(text[i]) && number <= INT32_MAX; ++i)
        number = number * 10 + (text[i] - '0');
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(negative ? -number : number, INT32_MIN, INT32_MAX));
}

}  // namespace vexa

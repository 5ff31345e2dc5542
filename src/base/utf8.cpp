#include "base/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "base/platform.h"

namespace vexa {

namespace {

constexpr std::size_t kLongestCharacter = 4;  // bytes

struct Substitute {
    char32_t character;
    char ascii;
};
constexpr Substitute kQuotes[] = {{0x2018, '\''}, {0x2019, '\''}, {0x201A, '\''}, {0x201B, '\''},
                                  {0x201C, '"'},  {0x201D, '"'},  {0x201E, '"'},  {0x201F, '"'}};

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The bytes of the character that a byte begins; 0 when it begins none.
std::size_t LengthFrom(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0x80) return 1;
    if (byte < 0xC2 || byte > 0xF4) return 0;
    return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// Takes the first character off a text; none when it is not UTF-8.
std::optional<char32_t> Take(std::string_view& text) {
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};  // a lower one has a shorter form
    const std::size_t length = LengthFrom(text.front());
    if (length == 0 || length > text.size()) return std::nullopt;
    char32_t character = static_cast<unsigned char>(text.front()) & (0xFFu >> length);
    if (length == 1) character = static_cast<unsigned char>(text.front());
    for (const char byte : text.substr(1, length - 1)) {
        if (!IsContinuation(byte)) return std::nullopt;
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3Fu);
    }
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    if (character < kLeast[length - 1] || character > 0x10FFFF || isSurrogate) return std::nullopt;
    text.remove_prefix(length);
    return character;
}

std::string AnsiOf(char32_t character) {
    const auto* const quote = std::ranges::find(kQuotes, character, &Substitute::character);
    if (quote != std::end(kQuotes)) return {quote->ascii};
    if (character < 0x80) return {static_cast<char>(character)};
    const std::string ansi = platform::AnsiCharacter(character);
    return ansi.empty() ? "?" : ansi;
}

// Eight bytes at once: nearly all lines of nearly all programs are plain ASCII.
bool IsAscii(std::string_view text) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t bytes = 0;
    for (; text.size() >= sizeof(bytes); text.remove_prefix(sizeof(bytes))) {
        std::memcpy(&bytes, text.data(), sizeof(bytes));
        if (bytes & kHighBits) return false;
    }
    return std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

}  // namespace

std::optional<std::string> AnsiOfUtf8(std::string_view text) {
    if (IsAscii(text)) return std::nullopt;
    std::string ansi;
    while (!text.empty()) {
        const std::optional<char32_t> character = Take(text);
        if (!character) return std::nullopt;
        ansi += AnsiOf(*character);
    }
    return ansi;
}

std::size_t CutOfUtf8(std::string_view text, std::size_t limit) {
    if (limit >= text.size()) return text.size();
    std::size_t cut = limit;
    while (cut > 0 && limit - cut < kLongestCharacter - 1 && IsContinuation(text[cut]))
        --cut;
    return LengthFrom(text[cut]) > limit - cut ? cut : limit;
}

}  // namespace vexa

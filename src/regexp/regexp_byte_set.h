// A set of byte values: a character class, or the characters with which a match may begin.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "regexp/plain_search.h"

namespace vexa::regexp {

using Byte = std::uint8_t;
using ByteTable = std::array<Byte, 256>;

class ByteSet {
  public:
    constexpr ByteSet() = default;

    static constexpr ByteSet All() {
        ByteSet all;
        all.invert();
        return all;
    }

    constexpr bool has(char c) const {
        const auto byte = static_cast<Byte>(c);
        return (words_[byte >> 5] >> (byte & 31) & 1u) != 0;
    }
    constexpr void add(char c) {
        const auto byte = static_cast<Byte>(c);
        words_[byte >> 5] |= 1u << (byte & 31);
    }
    // With every letter of the set, makes its upper and lower case members.
    constexpr void ignoreCase() {
        std::uint32_t& upper = words_['A' >> 5];
        std::uint32_t& lower = words_['a' >> 5];
        const std::uint32_t letters = (upper | lower) & kLetters;
        upper |= letters;
        lower |= letters;
    }
    constexpr void addRange(char first, char last) {
        for (int c = first; c <= last; ++c)
            add(static_cast<char>(c));
    }
    constexpr void remove(char c) {
        const auto byte = static_cast<Byte>(c);
        words_[byte >> 5] &= ~(1u << (byte & 31));
    }
    constexpr void invert() {
        for (auto& word : words_)
            word = ~word;
    }

    constexpr ByteSet& operator|=(const ByteSet& other) {
        for (std::size_t i = 0; i < words_.size(); ++i)
            words_[i] |= other.words_[i];
        return *this;
    }
    constexpr ByteSet& operator&=(const ByteSet& other) {
        for (std::size_t i = 0; i < words_.size(); ++i)
            words_[i] &= other.words_[i];
        return *this;
    }
    friend constexpr ByteSet operator&(ByteSet a, const ByteSet& b) { return a &= b; }
    friend constexpr bool operator==(const ByteSet&, const ByteSet&) = default;

    constexpr bool empty() const { return *this == ByteSet(); }

    // Sets the mask's bits in the table's entry of every member.
    constexpr void mark(ByteTable& table, Byte mask) const {
        for (std::size_t i = 0; i < words_.size(); ++i) {
            if (words_[i] == 0) continue;
            for (std::size_t bit = 0; bit < 32; ++bit)
                if ((words_[i] >> bit & 1u) != 0) table[i * 32 + bit] = static_cast<Byte>(table[i * 32 + bit] | mask);
        }
    }

  private:
    // The bits of the letters, in either case: the words of the two cases correspond.
    static constexpr std::uint32_t kLetters = 0x07FFFFFE;

    std::array<std::uint32_t, 8> words_{};
};

constexpr ByteSet SetOf(std::string_view characters, LetterCase letterCase) {
    ByteSet set;
    for (const char c : characters)
        set.add(c);
    if (letterCase == LetterCase::Ignored) set.ignoreCase();
    return set;
}

// What `\<` and `\>` take for a part of a word.
constexpr ByteSet WordCharacters() {
    ByteSet set;
    set.addRange('0', '9');
    set.addRange('A', 'Z');
    set.addRange('a', 'z');
    set.add('_');
    return set;
}

inline constexpr ByteSet kWordCharacters = WordCharacters();

}  // namespace vexa::regexp

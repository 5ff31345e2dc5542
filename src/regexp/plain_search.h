// The search for a literal in a line of text: the plain find, and the literals that a regular expression calls for.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "regexp/letter_case.h"
#include "regexp/search_tuning.h"

namespace vexa {

// A literal, prepared to be looked for in many lines. Ignoring letter case folds A-Z to a-z on both sides.
class PlainSearch {
  public:
    // The empty literal.
    PlainSearch() = default;
    // Throws std::bad_alloc.
    PlainSearch(std::string_view literal, LetterCase letterCase, Instructions most = SearchTuning().most);

    bool empty() const { return literal_.empty(); }
    // The first occurrence in the text, or null. An empty literal occurs at the start of every text.
    const char* find(std::string_view text) const;

  private:
    class Sse2;

    bool equalsAt(const char* position) const;
    const char* findPlain(const char* position, std::size_t count) const;
    const char* findSse2(const char* text, std::size_t count) const;

    std::string literal_;  // folded when letter case is ignored
    LetterCase letterCase_ = LetterCase::Sensitive;
    Instructions instructions_ = Instructions::Plain;
    // A byte, as often as a vector has bytes, so that a search of a short line begins with a load.
    using Repeated = std::array<char, 16>;
    Repeated first_{};  // the literal's first byte
    Repeated last_{};
    // What a byte is or-ed with before it is compared with those: the bit that tells lower case from upper where that
    // byte is a letter and case is ignored, else nothing.
    Repeated firstFold_{};
    Repeated lastFold_{};
};

}  // namespace vexa

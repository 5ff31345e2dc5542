// Finds the positions of a line where the next two or three characters may be those of a match.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "regexp/plain_search.h"
#include "regexp/regexp_byte_set.h"

namespace vexa::regexp {

// May let pass what is no match, but never misses one.
class PositionFilter {
  public:
    static constexpr std::size_t kOffsets = 3;
    static constexpr int kMostAlternatives = 8;

    // Alternatives, each a possible beginning: the sets of its characters at the first offsets. The NUL at the end of
    // the line is one of the characters, and the set of an offset that may lie after it is All.
    using Alternative = std::array<ByteSet, kOffsets>;

    // Lets every position pass.
    PositionFilter() = default;
    // Takes one to kMostAlternatives. Throws std::bad_alloc.
    PositionFilter(const std::vector<Alternative>& alternatives, Instructions most);

    bool active() const { return mode_ != Mode::Off; }
    // The first position that passes, the end included; null when none does. A NUL is at the end.
    const char* find(const char* position, const char* end) const;

  private:
    class Ssse3;
    enum class Mode : std::uint8_t { Off, OneAlternative, SeveralAlternatives };

    // A set of characters as vector instructions look it up: a character is in it when the entries of its low and its
    // high four bits have a bit in common.
    struct Halves {
        alignas(16) std::array<Byte, 16> low{};
        alignas(16) std::array<Byte, 16> high{};
    };

    const char* findPlain(const char* position, const char* end) const;
    const char* findSsse3(const char* position, const char* end) const;

    Mode mode_ = Mode::Off;
    Instructions instructions_ = Instructions::Plain;
    // Bit a of tables_[i][c]: alternative a may have c at offset i.
    std::array<ByteTable, kOffsets> tables_{};
    std::array<Halves, kOffsets> halves_{};
};

}  // namespace vexa::regexp

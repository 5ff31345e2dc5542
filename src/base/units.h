// The counted things of the editor, each a type of its own so that one is never taken for another.
#pragma once

#include <compare>
#include <cstdint>

namespace vexa {

// A signed 32-bit count of one kind of thing. Adding an int moves along; the difference of two is an int.
template <class Tag>
struct Unit {
    std::int32_t value = 0;

    constexpr Unit() = default;
    constexpr explicit Unit(std::int32_t v) : value(v) {}

    constexpr auto operator<=>(const Unit&) const = default;
    constexpr Unit operator+(std::int32_t n) const { return Unit(value + n); }
    constexpr Unit operator-(std::int32_t n) const { return Unit(value - n); }
    constexpr std::int32_t operator-(Unit other) const { return value - other.value; }
    constexpr Unit& operator+=(std::int32_t n) { return value += n, *this; }
    constexpr Unit& operator-=(std::int32_t n) { return value -= n, *this; }
    constexpr Unit& operator++() { return ++value, *this; }
    constexpr Unit& operator--() { return --value, *this; }
};

// Index of a line in its document, 0-based.
using LineIndex = Unit<struct LineIndexTag>;
// Index of a character (one byte of the ANSI code page) in its line, 0-based.
using CharColumn = Unit<struct CharColumnTag>;
// Column on the screen, 0-based, with every tab before it expanded to the next multiple of the tab size.
using DisplayColumn = Unit<struct DisplayColumnTag>;

// The ten things that have a display colour, in the order in which the user is shown them.
enum class ColourElement : std::uint8_t {
    Background,
    Comments,
    DefaultText,
    Keywords,
    MarkingBackground,
    MarkingText,
    Numbers,
    Preprocessors,
    Strings,
    Symbols
};

}  // namespace vexa

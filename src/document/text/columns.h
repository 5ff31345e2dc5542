// The arithmetic between characters of a line and columns of the screen. One byte takes one column, a tab runs to the
// next multiple of the tab size, and the space beyond a line's end goes on for ever at one column a character.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "base/units.h"

namespace vexa {

// Tab sizes come from a settings file unchecked; these are the ones that columns can be reckoned with.
constexpr std::int32_t UsableTabSize(std::int32_t tabSize) {
    return std::clamp(tabSize, 1, 1000);
}

// A character of a line and the screen column at which it begins.
struct ColumnMark {
    CharColumn character;
    DisplayColumn display;
};

// Columns are counted from a mark that is not after the one asked for: without another one, from the line's beginning.
// The screen column of the character at a column.
DisplayColumn ToDisplay(std::string_view text, CharColumn column, std::int32_t tabSize, ColumnMark from = {});
// The character that covers a screen column.
CharColumn ToCharacter(std::string_view text, DisplayColumn column, std::int32_t tabSize, ColumnMark from = {});
// The first character that begins at or after a screen column.
CharColumn FirstCharacterFrom(std::string_view text, DisplayColumn column, std::int32_t tabSize);

}  // namespace vexa

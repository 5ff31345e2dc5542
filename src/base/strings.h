// The string table: user-visible texts by name, and the filling of their placeholders.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vexa {

// The rows of strings.def by name; a text with a fixed number has that number.
enum class TextId : std::uint16_t {
#define VEXA_TEXT(name, number, text) name = number,
#define VEXA_UNNUMBERED_TEXT(name, text)
#include "base/strings.def"
#undef VEXA_TEXT
#undef VEXA_UNNUMBERED_TEXT
    LastNumbered = 9999,
#define VEXA_TEXT(name, number, text)
#define VEXA_UNNUMBERED_TEXT(name, text) name,
#include "base/strings.def"
#undef VEXA_TEXT
#undef VEXA_UNNUMBERED_TEXT
};

// The text of a row, with a NUL behind it; empty for a number that no row has.
std::string_view LoadText(TextId id);

// The format with each "%s" or "%d", in turn, replaced by the next argument, as it is, and each "%p" by the
// "s" of a plural, unless the argument before it is "1". A placeholder without an argument stays empty; "%%" and any
// other character stay as they are.
std::string FillText(std::string_view format, std::initializer_list<std::string_view> arguments);

// LoadText and FillText in one.
std::string FillText(TextId id, std::initializer_list<std::string_view> arguments);

// The text with line breaks in words that are longer than that many characters, such as long paths: a message box
// breaks lines at blanks alone.
std::string BreakLongWords(std::string_view text, std::size_t longest);

}  // namespace vexa

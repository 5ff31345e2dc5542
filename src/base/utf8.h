// Texts of other programs that are written in UTF-8.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vexa {

// The same text in the ANSI code page. Quotation marks become those that a keyboard has, with which compilers and what
// reads their messages agree; any other character that the code page lacks becomes "?". None for a text that is the
// same in both, or is not UTF-8 from its first byte to its last.
std::optional<std::string> AnsiOfUtf8(std::string_view text);

// Where to cut a text that may be UTF-8 so that at most limit bytes come first and no character falls apart.
std::size_t CutOfUtf8(std::string_view text, std::size_t limit);

}  // namespace vexa

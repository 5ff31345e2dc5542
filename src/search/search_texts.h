// What the typed texts of a search mean where replacements know groups: escapes, and parts of what was found.
#pragma once

#include <string>
#include <string_view>

#include "regexp/regexp.h"

namespace vexa {

// "\t" is a tab, "\\" a backslash and, where they are known, "\n" a line end; any other backslash stands for itself, as
// does one that ends the text.
std::string WithoutEscapes(std::string_view typed, bool lineEnds);
// A pattern in which "\t" is a tab and "\n" a line end. Every other backslash is the pattern's own. In brackets a
// backslash means nothing, but for "\t".
std::string PatternWithLineEnds(std::string_view typed);
// A replacement for what the pattern has just found: "&" and "\0" are what was found, up to a number of characters,
// "\1" to "\9" its groups, empty for one that took no part, and "\&" is an "&". Else as WithoutEscapes.
std::string ReplacementFor(std::string_view typed, const RegExp& found, std::size_t length);

}  // namespace vexa

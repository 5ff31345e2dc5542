// What can be put into a find text from a menu: a tab, which no key writes into a field, and the parts of a regular
// expression.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "base/strings.h"

namespace vexa {

struct PatternPiece {
    TextId label;
    std::string_view text;
    std::int32_t caretBack = 0;  // characters of the text that stand after the caret
    bool isRegular = true;       // means something in regular expressions only
};

std::span<const PatternPiece> PatternPieces();

// Whether a regular expression holds "\t", which many take for a tab. An escaped backslash before a t is none.
bool HoldsTabEscape(std::string_view pattern);

}  // namespace vexa

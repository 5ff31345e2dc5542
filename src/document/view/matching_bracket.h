// Which bracket belongs to which: (), [] and {}, nested, across lines.
#pragma once

#include <optional>

#include "base/units.h"
#include "document/text/text_document.h"

namespace vexa {

struct TextPlace {
    LineIndex line;
    CharColumn column;

    auto operator<=>(const TextPlace&) const = default;
};

// The bracket that a cursor is on, or else the one just before it; none when neither character is a bracket.
std::optional<TextPlace> BracketAt(const TextDocument& document, TextPlace cursor);

// The partner of the bracket at a place. Only brackets of the same shape are counted, so that one left open inside does
// not hide it. None when it has no partner.
std::optional<TextPlace> MatchingBracket(const TextDocument& document, TextPlace bracket);

}  // namespace vexa

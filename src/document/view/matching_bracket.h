// Which bracket belongs to which: (), [] and {}, nested, across lines.
#pragma once

#include <optional>

#include "document/text/text_document.h"
#include "document/text/text_position.h"

namespace vexa {

// The bracket that a cursor is on, or else the one just before it; none when neither character is a bracket.
std::optional<TextPosition> BracketAt(const TextDocument& document, TextPosition cursor);

// The partner of the bracket at a position; none when it has none. Only brackets of the same shape are counted, so that
// one left open inside does not hide it.
std::optional<TextPosition> MatchingBracket(const TextDocument& document, TextPosition bracket);

}  // namespace vexa

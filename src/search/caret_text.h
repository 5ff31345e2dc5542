// The text at the caret as something to search for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/text/text_document.h"
#include "document/view/word_motion.h"

namespace vexa {

// What is marked within the caret's line, else the word that the caret stands in or just after; none when there is
// neither.
std::optional<CharSpan> SpanAtCaret(const TextDocument& document);
// The find text that finds the given one and nothing else; of a long one, as much of its start as a find text holds.
std::string FindTextFor(std::string_view text, bool regularExpression);

}  // namespace vexa

// Tokens of a line as a readable text, and a second tokenizer to hold the real one against.
#pragma once

#include <string>
#include <string_view>

#include "language/line_tokenizer.h"

namespace vexa::test {

// One letter a character: c comment, w word, k keyword, n number, p preprocessor, s string, y symbols, t tab; "." for
// what stands behind a byte 0. Checks that the tokens follow each other without a gap.
std::string ColoursOf(const TokenRules& rules, std::string_view line, LineState start = LineState::Outside);

// The same by the plainest means: one rule after the other at each place, one character at a time, no tables.
std::string PlainColoursOf(const ExtensionProfile& profile, std::string_view line, bool& insideComment);

}  // namespace vexa::test

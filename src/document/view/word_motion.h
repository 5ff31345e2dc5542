// Where words begin and end in a line. A word is a run of letters, digits, underscores and bytes above 127; a run of
// other characters that are not blanks counts as a word too.
#pragma once

#include <optional>
#include <string_view>

#include "base/units.h"

namespace vexa {

// The characters of a line from begin up to end.
struct CharSpan {
    CharColumn begin;
    CharColumn end;

    bool isEmpty() const { return begin >= end; }
};

// The word of letters, digits, underscores and bytes above 127 that a column stands in or just after; none when there
// is none.
std::optional<CharSpan> WordAt(std::string_view text, CharColumn column);
// The start of the next word after a column; none when the line has no more.
std::optional<CharColumn> NextWordStart(std::string_view text, CharColumn column);
// The start of the word that begins before a column; none when there is none.
std::optional<CharColumn> PreviousWordStart(std::string_view text, CharColumn column);

}  // namespace vexa

// Puts lines in the place of what a search has found.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/text/text_position.h"
#include "document/view/edit_view.h"

namespace vexa {

// A text, with "\n" between two lines, in the place of so many characters of a line, recorded for undo. What follows
// these goes to the last of its lines. Returns where the text ends; the cursor moves only for several lines.
TextPosition InsertLines(EditView& view, TextPosition start, std::int32_t length, std::string_view text);

}  // namespace vexa

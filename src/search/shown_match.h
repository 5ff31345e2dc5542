// Shows a match in the window of its document.
#pragma once

#include "document/text/text_position.h"
#include "document/view/edit_view.h"
#include "search/line_search.h"
#include "search/search_options.h"

namespace vexa {

// Moves the cursor to a match, marks it up to its end, which may be in a line below, brings both into sight, and keeps
// it in the options as the last one. One undo group of the view's document.
void ShowMatch(EditView& view, SearchOptions& options, LineIndex line, const LineMatch& match, TextPosition end);

}  // namespace vexa

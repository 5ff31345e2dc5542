// Giving a document another text as one command: the lines that stay the same are left alone, and undo brings the old
// ones back.
#pragma once

#include <string_view>
#include <vector>

#include "document/text/text_document.h"

namespace vexa {

// Lines of a text whose bytes belong to somebody else.
using LineViews = std::vector<std::string_view>;

// Up to the last line that is not empty, as a save writes them; the first is always there.
LineViews LinesOf(const TextDocument& document);

// The caret keeps its line, and so does a bookmark. The caller closes the undo group. std::bad_alloc, and what has been
// exchanged by then can be undone.
void ExchangeText(TextDocument& document, const LineViews& lines);

// Reads the document's file anew, as one command, after which the document is unmodified. False when the file cannot be
// read; nothing is changed then.
bool ReadAnew(TextDocument& document);

}  // namespace vexa

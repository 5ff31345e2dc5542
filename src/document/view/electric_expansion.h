// Replaces the keyword of an electric word in a document by its expansion.
#pragma once

#include "document/text/text_document.h"
#include "document/view/line_editor.h"
#include "language/electric_list.h"

namespace vexa {

// Expands the keyword that ends at the cursor, the longest if there are several; false, and nothing changed, when there
// is none. A keyword that begins or ends with a word's character must not stand in a longer word, and none is expanded
// that begins inside a comment, a string or a preprocessor word. Neither is one whose expansion would go beyond the
// last column.
//
// New lines of the expansion get the indentation of the keyword's line, but for those that stay empty. The cursor ends
// at the first \c, without one after the expansion. The caller closes the undo group.
bool ExpandElectricWord(TextDocument& document, LineEditor& editor, const ElectricList& list);

}  // namespace vexa

// Giving a document another text as one command: the lines that stay the same are left alone, and undo brings the old
// ones back.
#pragma once

#include <string_view>
#include <vector>

#include "document/text/text_document.h"

namespace vexa {

// A line of a text whose bytes belong to somebody else.
struct LineView : std::string_view {
    using std::string_view::string_view;
    LineView(std::string_view text, LineEnd lineEnd = LineEnd::CrLf) : std::string_view(text), end(lineEnd) {}
    bool operator==(const LineView&) const = default;

    LineEnd end = LineEnd::CrLf;  // CR LF where ends are not kept
};
using LineViews = std::vector<LineView>;

// Up to the last line that a save writes; the first is always there.
LineViews LinesOf(const TextDocument& document);

// The caret keeps its line, and so does a bookmark. The caller closes the undo group. std::bad_alloc, and what has been
// exchanged by then can be undone.
void ExchangeText(TextDocument& document, const LineViews& lines);

// Reads the document's file anew, as one command, after which the document is unmodified. False when the file cannot be
// read; nothing is changed then.
bool ReadAnew(TextDocument& document);

}  // namespace vexa

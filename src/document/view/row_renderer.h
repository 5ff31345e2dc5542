// Turns a line of a document into the cells of one row of a window.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/units.h"
#include "document/text/text_document.h"

namespace vexa {

// A run of cells of one row that have the same colours.
struct CellRun {
    std::int32_t start = 0;  // cells from the left edge of the window
    std::int32_t length = 0;
    ColourElement text = ColourElement::DefaultText;
    ColourElement background = ColourElement::Background;

    bool operator==(const CellRun&) const = default;
};

// One row of the window: its characters (one a cell, cut at the text's end or the window's edge) and the colours of all
// cells up to the right edge. Rows that compare equal look the same.
struct ViewRow {
    std::string cells;
    std::vector<CellRun> runs;

    bool operator==(const ViewRow&) const = default;
};

// The characters of a text in the cells of a window that shows that many columns from left on, tabs as blanks.
// Columns are counted from a mark at or before left.
std::string VisibleCells(std::string_view text, std::int32_t tabSize, DisplayColumn left, std::int32_t columns,
                         ColumnMark from = {});

// Display columns from begin up to end; none when they are equal.
struct ColumnSpan {
    DisplayColumn begin;
    DisplayColumn end;
};

// The columns of a line that are shown as marked. A marked line end counts as one column after the text.
ColumnSpan MarkedColumns(const TextDocument& document, LineIndex line);

// The row of a line in a window that shows that many columns from left on. A line beyond the document is empty. Text
// has the colours of its tokens, or without highlighting that of default text; what is marked has those of the marking.
ViewRow RenderRow(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns,
                  bool highlighting = true);
// The same row as if nothing were marked.
ViewRow RenderUnmarkedRow(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns,
                          bool highlighting);

// Whether what stands at a column of a line is marked.
bool IsMarkedAt(const TextDocument& document, LineIndex line, DisplayColumn column);

}  // namespace vexa

// The rules of a list window: what a row looks like, and where keys move the selection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "document/view/row_renderer.h"
#include "external/list_rows.h"

namespace vexa {

// The cells of a row's text with tabs at every eighth column, in a window that shows that many columns from left on.
ViewRow RenderListRow(std::string_view text, RowKind kind, bool isSelected, std::int32_t left, std::int32_t columns);
// The columns that the text takes.
std::int32_t ListRowWidth(std::string_view text);

// The rows of a list, of which a window shows page at once.
struct ListExtent {
    std::size_t rows = 0;
    std::size_t page = 1;
};

// The row that a key, given by its virtual-key code, moves the selection to; none for other keys and an empty list.
// Without a selection, it begins at the first row.
std::optional<std::size_t> RowAfterKey(unsigned key, std::optional<std::size_t> selected, const ListExtent& extent);

// Where the window begins so that a row is seen, moved as little as can be from where it began.
std::size_t TopShowing(std::size_t row, std::size_t top, std::size_t page);

}  // namespace vexa

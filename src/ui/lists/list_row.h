// The rules of a list window: what a row looks like, and where keys move the selection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/list_rows.h"
#include "document/view/row_renderer.h"

namespace vexa {

// Where a row is shown: in a window with that many columns from left on. Where colours do not tell the kinds of rows
// apart, each row begins with two characters that do.
struct RowView {
    std::int32_t left = 0;
    std::int32_t columns = 1;
    bool hasMarks = false;
};
inline constexpr std::int32_t kMarkWidth = 2;

// The colours that the kinds of rows are told apart by.
ColourElement ColourOf(RowKind kind);
// The cells of a row's text with tabs at every eighth column. What is highlighted, in a row that is not selected, has a
// colour of its own, or those of the row exchanged where colours do not tell the kinds of rows apart.
ViewRow RenderListRow(std::string_view text, RowKind kind, bool isSelected, const RowView& view,
                      const RowPart& highlight = {});
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

struct RowSpan {
    bool holds(std::size_t row) const { return row - first < count; }

    std::size_t first = 0;
    std::size_t count = 0;
};

// The rows that are selected with the one that a list calls its selected one: from where the user began to extend the
// selection. A row that the list has selected of itself is selected alone.
class RowSelection {
  public:
    // The user moves the selection from one row to another, or extends it.
    void move(std::optional<std::size_t> from, std::size_t to, bool extends);
    void clear() { end_.reset(); }
    RowSpan span(std::optional<std::size_t> selected) const;

  private:
    std::size_t anchor_ = 0;
    std::optional<std::size_t> end_;
};

// Where the window begins so that a row is seen, moved as little as can be from where it began.
std::size_t TopShowing(std::size_t row, std::size_t top, std::size_t page);

}  // namespace vexa

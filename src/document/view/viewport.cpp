#include "document/view/viewport.h"

#include <algorithm>

namespace vexa {

LineIndex LastShownLine(const TextDocument& document) {
    return std::max(document.lastLine(LastUsed::Plain), document.currentLine());
}

void Viewport::resize(std::int32_t rows, std::int32_t columns) {
    rows_ = std::max(rows, 1);
    columns_ = std::max(columns, 1);
}

DisplayColumn Viewport::widestColumn() const {
    DisplayColumn widest(Limits().lastColumn);
    for (std::int32_t row = 0; row <= rows_; ++row) {
        const auto length = static_cast<std::int32_t>(document_.text(top_ + row).size());
        widest = std::max(widest, document_.toDisplay(top_ + row, CharColumn(length)));
    }
    return std::max(widest, document_.displayColumn()) + 1;
}

void Viewport::scrollToLine(LineIndex top) {
    top_ = std::clamp(top, LineIndex(0), lastLine());
}

void Viewport::scrollToColumn(DisplayColumn left) {
    left_ = std::clamp(left, DisplayColumn(0), widestColumn());
}

void Viewport::centreCursorLine() {
    top_ = LineIndex(std::max(document_.currentLine().value - rows_ / 2, 0));
}

// Sideways it goes a quarter of the window further: typing at the edge would otherwise scroll at every key.
void Viewport::bringCaretIntoSight(bool centre) {
    const LineIndex line = document_.currentLine();
    if (centre && (line < top_ || line >= top_ + rows_)) centreCursorLine();
    top_ = std::clamp(top_, line - (rows_ - 1), line);
    const DisplayColumn column = document_.displayColumn();
    const std::int32_t step = columns_ / 4;
    if (column < left_) left_ = DisplayColumn(std::max(column.value - step, 0));
    if (column >= left_ + columns_) left_ = column - (columns_ - 1 - step);
}

std::optional<Cell> Viewport::caret() const {
    const Cell cell{document_.currentLine() - top_, document_.displayColumn() - left_};
    if (cell.row < 0 || cell.row > rows_ || cell.column < 0 || cell.column > columns_) return std::nullopt;
    return cell;
}

}  // namespace vexa

// The part of a document that its window shows, and where the caret is in it.
#pragma once

#include <cstdint>
#include <optional>

#include "base/units.h"
#include "document/text/text_document.h"

namespace vexa {

// A position in the window; may lie outside it.
struct Cell {
    std::int32_t row = 0;
    std::int32_t column = 0;

    bool operator==(const Cell&) const = default;
};

// The last line that is in use or has the caret: scrolling reaches it, and the margin numbers the lines up to it.
LineIndex LastShownLine(const TextDocument& document);

class Viewport {
  public:
    explicit Viewport(const TextDocument& document) : document_(document) {}

    // The number of whole rows and columns that the window shows, each taken as at least 1.
    void resize(std::int32_t rows, std::int32_t columns);
    std::int32_t rows() const { return rows_; }
    std::int32_t columns() const { return columns_; }

    LineIndex top() const { return top_; }
    DisplayColumn left() const { return left_; }
    LineIndex lastLine() const { return LastShownLine(document_); }
    // What scrolling must be able to reach.
    DisplayColumn widestColumn() const;

    void scrollToLine(LineIndex top);
    void scrollToColumn(DisplayColumn left);
    void scrollBy(std::int32_t lines) { scrollToLine(top_ + lines); }
    void centreCursorLine();
    // Scrolls no further than it must; with `centre` the line of a caret that is out of sight comes to the middle.
    void bringCaretIntoSight(bool centre);

    // Where the caret stands in the window; none while it is out of sight.
    std::optional<Cell> caret() const;

  private:
    const TextDocument& document_;
    LineIndex top_;
    DisplayColumn left_;
    std::int32_t rows_ = 1;
    std::int32_t columns_ = 1;
};

}  // namespace vexa

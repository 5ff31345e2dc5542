// Where the characters of long lines are on the screen. Each key asks for columns of every line in the window, and
// those of a line of a million characters would be counted from its beginning each time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/text/columns.h"
#include "document/text/text_line.h"

namespace vexa {

// Keeps a mark at every so many characters of the long lines that were last asked about, as many as a window shows.
class ColumnMarks {
  public:
    static constexpr std::int32_t kStep = 2048;  // characters from mark to mark

    // A mark not after that column and not far before it. Throws std::bad_alloc.
    template <class Column>
    ColumnMark before(const TextLine& line, Column column, std::int32_t tabSize) {
        return line.length() < kStep || column.value < kStep ? ColumnMark() : lookUp(line, column, tabSize);
    }

  private:
    struct Measured {
        const TextLine* line = nullptr;  // only compared: it may be gone
        std::int32_t tabSize = 0;
        std::vector<std::int32_t> displays;
    };

    ColumnMark lookUp(const TextLine& line, CharColumn column, std::int32_t tabSize);
    ColumnMark lookUp(const TextLine& line, DisplayColumn column, std::int32_t tabSize);
    const std::vector<std::int32_t>& marksOf(const TextLine& line, std::int32_t tabSize);

    Measured lines_[128];
    std::size_t oldest_ = 0;
};

}  // namespace vexa

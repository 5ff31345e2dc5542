// The marked area of a document.
#pragma once

#include <compare>
#include <cstdint>

#include "base/units.h"

namespace vexa {

enum class MarkMode : std::int32_t {
    None = 0,
    Lines = 1,   // whole lines, from the start line to the end line
    Stream = 2,  // the characters from the start point up to the end point, across lines
    Column = 3   // the columns from the start's up to the end's, on every line from start to end
};

struct MarkPoint {
    LineIndex line;
    DisplayColumn column;

    auto operator<=>(const MarkPoint&) const = default;
};

// While active, start does not lie after end: in lines, and in columns where the mode makes columns count.
struct MarkedArea {
    MarkMode mode = MarkMode::None;
    bool active = false;
    MarkPoint start;
    MarkPoint end;

    bool operator==(const MarkedArea&) const = default;
};

}  // namespace vexa

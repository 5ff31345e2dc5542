// The sheet of paper that a printer prints on, and where the text stands on it.
#pragma once

#include <cstdint>

#include "document/print/print_options.h"

namespace vexa {

// All in the printer's dots. No printer reaches the sheet's very edges: it counts from the corner of what it reaches.
struct Paper {
    std::int32_t dotsPerInchX = 300;
    std::int32_t dotsPerInchY = 300;
    std::int32_t width = 0;  // of the whole sheet
    std::int32_t height = 0;
    std::int32_t reachedLeft = 0;  // the corner of what is reached, on the sheet
    std::int32_t reachedTop = 0;
    std::int32_t reachedWidth = 0;
    std::int32_t reachedHeight = 0;
};

struct DotArea {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const DotArea&) const = default;
};

// What lies between the margins and is reached, counted from the corner of what is reached. Margins that leave nothing
// give an area without width or height.
DotArea TextAreaOf(const Paper& paper, const PrintMargins& margins);

}  // namespace vexa

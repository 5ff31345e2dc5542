// A position in a document's text.
#pragma once

#include "base/units.h"

namespace vexa {

struct TextPosition {
    LineIndex line;
    CharColumn column;

    auto operator<=>(const TextPosition&) const = default;
};

}  // namespace vexa

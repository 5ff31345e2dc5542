// What the margin beside a line of a document says: its number, its bookmark, and whether it has been changed.
#pragma once

#include <cstdint>
#include <string>

#include "document/text/text_document.h"

namespace vexa {

struct MarginRow {
    std::string number;      // right-aligned; blank where there is no line, or numbers are not wanted
    char bookmark = ' ';     // the digit of the lowest bookmark that the line has
    bool isChanged = false;  // not as it was loaded or saved
    bool isCurrent = false;  // the cursor is in the line

    bool operator==(const MarginRow&) const = default;
};

// How many digits the numbers of a document take: enough for its last line, and for four so that the text does not move
// while a document grows; 0 when numbers are not wanted.
std::int32_t MarginDigits(const TextDocument& document);
MarginRow RenderMarginRow(const TextDocument& document, LineIndex line);

}  // namespace vexa

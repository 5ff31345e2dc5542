// Which characters of a line the marked area covers.
#pragma once

#include "document/text/text_document.h"
#include "document/view/word_motion.h"

namespace vexa {

// The marked part, within the line's text, of a line that lies between the area's first and last line.
CharSpan MarkedSpan(const TextDocument& document, LineIndex line);
// The characters of a span.
std::string_view TextOf(const TextDocument& document, LineIndex line, CharSpan span);
// The last line of the marked area that there is room for.
LineIndex LastMarkedLine(const TextDocument& document);

}  // namespace vexa

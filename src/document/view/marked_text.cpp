#include "document/view/marked_text.h"

#include <algorithm>

#include "document/text/columns.h"

namespace vexa {

CharSpan MarkedSpan(const TextDocument& document, LineIndex line) {
    const MarkedArea& area = document.marked();
    const std::string_view text = document.text(line);
    const CharColumn textEnd(static_cast<std::int32_t>(text.size()));
    CharSpan span{CharColumn(0), textEnd};
    if (area.mode == MarkMode::Column) {
        span.begin = FirstCharacterFrom(text, area.start.column, document.tabSize());
        span.end = FirstCharacterFrom(text, area.end.column, document.tabSize());
    } else if (area.mode == MarkMode::Stream) {
        if (line == area.start.line) span.begin = document.toCharacter(line, area.start.column);
        if (line == area.end.line) span.end = document.toCharacter(line, area.end.column);
    }
    span.end = std::min(span.end, textEnd);
    span.begin = std::min(span.begin, span.end);
    return span;
}

std::string_view TextOf(const TextDocument& document, LineIndex line, CharSpan span) {
    return document.text(line).substr(static_cast<std::size_t>(span.begin.value),
                                      static_cast<std::size_t>(span.end - span.begin));
}

LineIndex LastMarkedLine(const TextDocument& document) {
    return LineIndex(std::min(document.marked().end.line.value, document.lines().capacity() - 1));
}

}  // namespace vexa

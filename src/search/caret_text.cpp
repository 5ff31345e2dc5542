#include "search/caret_text.h"

#include "document/view/marked_text.h"
#include "search/search_options.h"

namespace vexa {

namespace {

// What the character is written as in a find text.
std::string Written(char c, bool regularExpression) {
    if (c == '\t' && !regularExpression) return "\\t";
    const std::string_view special = regularExpression ? "\\|*+?()[^$." : "\\";
    return special.find(c) == std::string_view::npos ? std::string(1, c) : std::string{'\\', c};
}

}  // namespace

std::optional<CharSpan> SpanAtCaret(const TextDocument& document) {
    const MarkedArea& marked = document.marked();
    const LineIndex line = document.currentLine();
    if (marked.active && marked.start.line == line && marked.end.line == line) {
        const CharSpan span = MarkedSpan(document, line);
        if (!span.isEmpty()) return span;
    }
    return WordAt(document.text(line), document.column());
}

std::string FindTextFor(std::string_view text, bool regularExpression) {
    std::string written;
    for (const char c : text) {
        const std::string next = Written(c, regularExpression);
        if (written.size() + next.size() > SearchOptions::kTextLimit) break;
        written += next;
    }
    return written;
}

}  // namespace vexa

#include "document/view/case_change.h"

#include <algorithm>
#include <string>

#include "base/ascii.h"
#include "base/strings.h"
#include "document/text/run_actions.h"
#include "document/view/marked_text.h"
#include "document/view/word_motion.h"

namespace vexa {

namespace {

char Toggled(char c) {
    return LowerAscii(c) == c ? UpperAscii(c) : LowerAscii(c);
}

// In the order of CaseChange.
constexpr char (*kChanges[])(char) = {Toggled, LowerAscii, UpperAscii};

void ChangeSpan(TextDocument& document, LineEditor& editor, LineIndex line, CharSpan span, CaseChange change) {
    std::string text(TextOf(document, line, span));
    std::ranges::transform(text, text.begin(), kChanges[static_cast<std::size_t>(change)]);
    if (text != TextOf(document, line, span)) editor.run<ReplaceRun>(line, span.begin, span.end - span.begin, text);
}

bool ChangeMarked(TextDocument& document, LineEditor& editor, CaseChange change) {
    bool any = false;
    const LineIndex last = LastMarkedLine(document);
    for (LineIndex line = document.marked().start.line; line <= last; ++line) {
        const CharSpan span = MarkedSpan(document, line);
        any = any || !span.isEmpty();
        ChangeSpan(document, editor, line, span, change);
    }
    return any;
}

bool ChangeWord(TextDocument& document, LineEditor& editor, CaseChange change) {
    const LineIndex line = document.currentLine();
    const auto word = WordAt(document.text(line), document.column());
    if (!word) return false;
    ChangeSpan(document, editor, line, *word, change);
    return true;
}

}  // namespace

bool ChangeCase(TextDocument& document, LineEditor& editor, CaseChange change) {
    const bool marked = document.marked().active;
    if (marked ? ChangeMarked(document, editor, change) : ChangeWord(document, editor, change)) return true;
    document.notices().status(LoadText(marked ? TextId::NoWordMarked : TextId::NoWordAtCursor), true, true);
    return false;
}

}  // namespace vexa

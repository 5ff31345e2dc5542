#include "search/shown_match.h"

#include <algorithm>

#include "document/text/cursor_actions.h"

namespace vexa {

namespace {

// Ends a command whose match may be out of sight: a line that is comes to the middle of the window, and sideways the
// match follows the cursor, no further than it must.
void FinishWithMatchInSight(EditView& view, const LastMatch& match) {
    if (match.line < view.topLine() || match.line >= view.topLine() + view.rows()) view.centreCursorLine();
    view.finish();
    if (match.displayEnd > view.leftColumn() + view.columns())
        view.scrollToColumn(std::min(match.displayStart, match.displayEnd - view.columns()));
}

}  // namespace

void ShowMatch(EditView& view, SearchOptions& options, LineIndex line, const LineMatch& match, TextPosition end) {
    TextDocument& document = view.document();
    LastMatch& last = options.lastMatch;
    last.line = line;
    last.endLine = end.line;
    last.column = match.column;
    last.length = match.length;
    last.displayStart = document.toDisplay(line, last.column);
    const bool isInLine = end.line == line;
    last.displayEnd =
        isInLine ? last.displayStart + std::max(last.length, 1) : document.toDisplay(end.line, end.column);
    LineEditor& editor = view.editor();
    view.marker().clear();
    editor.moveToLine(line);
    editor.moveToColumn(last.column);
    editor.run<SetMarkMode>(MarkMode::Stream);
    editor.run<SetMark>(MarkPoint{line, last.displayStart}, MarkPoint{end.line, last.displayEnd});
    last.cursorColumn = document.column();
    options.setPastLineEnd(last.cursorColumn >= editor.textEnd());
    options.setMatchPending(true);
    FinishWithMatchInSight(view, last);
}

}  // namespace vexa

#include "document/view/movements.h"

#include <algorithm>

#include "document/view/word_motion.h"

namespace vexa {

namespace {

void TurnPage(Editing& editing, std::int32_t direction) {
    const std::int32_t lines = direction * std::max(editing.viewport.rows() - 1, 1);
    const LineIndex target = editing.document.currentLine() + lines;
    editing.viewport.scrollBy(lines);
    editing.editor.moveToLineKeepingDisplay(std::clamp(target, LineIndex(0), editing.viewport.lastLine()));
}

}  // namespace

void CharLeft(Editing& editing) {
    editing.editor.moveLeft(1);
}

void CharRight(Editing& editing) {
    editing.editor.moveRight(1);
}

void WordLeft(Editing& editing) {
    const LineIndex line = editing.document.currentLine();
    if (const auto start = PreviousWordStart(editing.document.text(line), editing.document.column())) {
        editing.editor.moveToColumn(*start);
    } else if (line.value > 0) {
        editing.editor.moveToLine(line - 1);
        editing.editor.moveToLineEnd();
    }
}

void WordRight(Editing& editing) {
    const LineIndex line = editing.document.currentLine();
    if (const auto start = NextWordStart(editing.document.text(line), editing.document.column())) {
        editing.editor.moveToColumn(*start);
    } else if (line < editing.document.lastLine(LastUsed::Plain)) {
        editing.editor.moveToLine(line + 1);
        const std::size_t indent = IndentOf(editing.document.text(line + 1)).size();
        editing.editor.moveToColumn(CharColumn(static_cast<std::int32_t>(indent)));
    } else {
        editing.editor.moveToLineEnd();
    }
}

void LineUp(Editing& editing) {
    editing.editor.cursorUp();
}

void LineDown(Editing& editing) {
    editing.editor.cursorDown();
}

void PageUp(Editing& editing) {
    TurnPage(editing, -1);
}

void PageDown(Editing& editing) {
    TurnPage(editing, +1);
}

void HomeKey(Editing& editing) {
    if (editing.pressesInARow == 1) return editing.editor.moveToLineStart();
    if (editing.pressesInARow == 2) return WindowStart(editing);
    DocumentStart(editing);
}

void EndKey(Editing& editing) {
    if (editing.pressesInARow == 1) return editing.editor.moveToLineEnd();
    if (editing.pressesInARow == 2) return WindowEnd(editing);
    DocumentEnd(editing);
}

void WindowStart(Editing& editing) {
    editing.editor.moveToLine(editing.viewport.top());
    editing.editor.moveToLineStart();
}

void WindowEnd(Editing& editing) {
    const Viewport& viewport = editing.viewport;
    editing.editor.moveToLine(std::min(viewport.top() + (viewport.rows() - 1), viewport.lastLine()));
    editing.editor.moveToLineEnd();
}

void DocumentStart(Editing& editing) {
    editing.editor.moveToLine(LineIndex(0));
    editing.editor.moveToLineStart();
}

void DocumentEnd(Editing& editing) {
    editing.editor.moveToLine(editing.document.lastLine(LastUsed::Text));
    editing.editor.moveToLineEnd();
}

void Move(Editing& editing, ViewAction movement, bool marks) {
    if (marks) editing.marker.begin(MarkMode::Stream);
    movement(editing);
    editing.marker.cursorMoved(marks);
}

}  // namespace vexa

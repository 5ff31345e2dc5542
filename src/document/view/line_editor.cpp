#include "document/view/line_editor.h"

#include <algorithm>

#include "document/text/columns.h"
#include "document/text/cursor_actions.h"
#include "document/text/line_actions.h"
#include "document/text/run_actions.h"
#include "document/text/text_actions.h"

namespace vexa {

CharColumn LineEditor::textEnd() const {
    return CharColumn(static_cast<std::int32_t>(document_.text(document_.currentLine()).size()));
}

// ---- moving ------------------------------------------------------------------------------------------------------

void LineEditor::moveToColumn(CharColumn column) {
    if (column != document_.column()) run<MoveToColumn>(column);
}

void LineEditor::moveToDisplayColumn(DisplayColumn column) {
    moveToColumn(document_.toCharacter(document_.currentLine(), column));
}

bool LineEditor::moveLeft(std::int32_t n) {
    const CharColumn from = document_.column();
    moveToColumn(CharColumn(std::max(from.value - n, 0)));
    return from.value > 0;
}

void LineEditor::moveToLine(LineIndex line) {
    if (line != document_.currentLine()) run<MoveToLine>(line);
}

void LineEditor::moveToLineKeepingDisplay(LineIndex line) {
    const DisplayColumn display = document_.displayColumn();
    moveToLine(line);
    moveToDisplayColumn(display);
}

void LineEditor::cursorUp() {
    if (document_.currentLine().value > 0) moveToLineKeepingDisplay(document_.currentLine() - 1);
}

void LineEditor::cursorDown() {
    const LineIndex below = document_.currentLine() + 1;
    if (document_.line(below) == nullptr) document_.lines().put(document_.makeLine({}), below.value);
    moveToLineKeepingDisplay(below);
}

// ---- typing ------------------------------------------------------------------------------------------------------

void LineEditor::pad() {
    const CharColumn column = document_.column();
    const CharColumn end = textEnd();
    if (column <= end) return;
    const std::int32_t tab = document_.tabSize();
    const std::int32_t cursor = document_.displayColumn().value;
    const std::int32_t tabs = cursor / tab - document_.toDisplay(document_.currentLine(), end).value / tab;
    moveToColumn(end);
    if (options_.UseTabs && tabs > 0) {
        typeBlanks('\t', tabs);
        typeBlanks(' ', cursor % tab);
    } else {
        typeBlanks(' ', column - end);
    }
}

void LineEditor::typeBlanks(char blank, std::int32_t n) {
    if (n > 0) insertText(std::string(static_cast<std::size_t>(n), blank));
}

// One step for the whole text, except where the cursor would run into the last column: there each character goes to
// where the one before it has left the cursor.
void LineEditor::insertText(std::string_view text) {
    const auto length = static_cast<std::int32_t>(text.size());
    if (length > 1 && document_.column() + length <= CharColumn(document_.rules().limits.lastColumn)) {
        run<ReplaceRun>(0, text);
        moveRight(length);
        return;
    }
    for (const char c : text) {
        run<InsertChar>(c);
        moveRight(1);
    }
}

void LineEditor::insertIndent() {
    if (options_.UseTabs) {
        typeBlanks('\t', 1);
    } else {
        typeBlanks(' ', document_.tabSize() - document_.displayColumn().value % document_.tabSize());
    }
}

void LineEditor::type(char c, std::int32_t n) {
    if (n > 0) typeText(std::string(static_cast<std::size_t>(n), c));
}

void LineEditor::typeText(std::string_view text) {
    if (text.empty()) return;
    pad();
    if (options_.InsertMode) {
        insertText(text);
    } else {
        overwriteText(text);
    }
}

void LineEditor::overwriteText(std::string_view text) {
    for (const char c : text) {
        if (document_.column() == textEnd()) run<InsertChar>(' ');
        run<OverwriteChar>(c);
        moveRight(1);
    }
}

// ---- deleting ----------------------------------------------------------------------------------------------------

void LineEditor::deleteChars(std::int32_t n) {
    pad();
    for (; n > 0; --n) {
        if (document_.column() == textEnd()) {
            joinNextLine();
        } else {
            run<DeleteChar>();
        }
    }
}

void LineEditor::backspace(std::int32_t n) {
    for (; n > 0; --n) {
        if (moveLeft(1) && document_.column() <= textEnd()) deleteChars(1);
    }
}

void LineEditor::deleteInLine(std::int32_t n) {
    n = std::min(n, textEnd() - document_.column());
    if (n > 1) {
        run<ReplaceRun>(n, std::string_view());
    } else if (n == 1) {
        run<DeleteChar>();
    }
}

void LineEditor::deleteBetween(CharColumn from, CharColumn to) {
    moveToColumn(from);
    to = std::min(to, textEnd());
    if (from < to) run<ReplaceRun>(document_.currentLine(), from, to - from, std::string_view());
}

void LineEditor::deleteToStart() {
    const std::int32_t before = document_.column().value;
    moveToLineStart();
    deleteInLine(before);
}

void LineEditor::deleteToEnd() {
    deleteInLine(textEnd() - document_.column());
}

void LineEditor::deleteColumns(DisplayColumn from, DisplayColumn to) {
    const std::string_view text = document_.text(document_.currentLine());
    const CharColumn first = FirstCharacterFrom(text, from, document_.tabSize());
    const CharColumn last = FirstCharacterFrom(text, to, document_.tabSize());
    deleteBetween(first, last);
}

void LineEditor::deleteLine() {
    const DisplayColumn display = document_.displayColumn();
    deleteCurrentLine();
    moveToDisplayColumn(display);
}

void LineEditor::deleteCurrentLine() {
    run<DeleteLine>();
}

void LineEditor::joinNextLine() {
    run<JoinLines>();
}

// ---- Enter and indentation -----------------------------------------------------------------------------------------

void LineEditor::splitLine() {
    run<SplitLine>();
}

void LineEditor::breakLine() {
    const CharColumn column = document_.column();
    if (column.value == 0 && column < textEnd()) {
        run<InsertEmptyLine>();
    } else {
        splitLine();
    }
    cursorDown();
    moveToLineStart();
}

void LineEditor::newLine(bool force) {
    if (options_.InsertMode || force) {
        breakLine();
    } else {
        cursorDown();
        moveToLineStart();
    }
    if (options_.SmartIndent) smartIndent(0);
}

void LineEditor::smartIndent(std::int32_t extra) {
    LineIndex above = document_.currentLine() - 1;
    while (above.value >= 0 && IsBlank(document_.text(above)))
        --above;
    if (above.value < 0) return;
    // The steps below may move the text that the view points to only when they change that line, which they do not.
    const std::string_view indent = IndentOf(document_.text(above));
    const DisplayColumn display = document_.toDisplay(above, CharColumn(static_cast<std::int32_t>(indent.size())));
    if (options_.InsertMode && textEnd().value > 0) takeOverIndent(indent);
    moveToColumn(document_.toCharacter(document_.currentLine(), display) + extra);
}

void LineEditor::takeOverIndent(std::string_view indent) {
    moveToLineStart();
    deleteInLine(static_cast<std::int32_t>(IndentOf(document_.text(document_.currentLine())).size()));
    typeText(indent);
}

// The column just after the last blank or tab before the cursor, 0 when there is none; at or after the text's end
// when no word stands between that blank and the end.
std::int32_t LineEditor::wrapPoint() const {
    const std::string_view text = document_.text(document_.currentLine());
    std::int32_t i = document_.column().value - 1;
    while (i >= 1 && i < textEnd().value && text[static_cast<std::size_t>(i)] != ' ' &&
           text[static_cast<std::size_t>(i)] != '\t') {
        --i;
    }
    return i >= 1 ? i + 1 : 0;
}

void LineEditor::wordWrap() {
    const CharColumn cursor = document_.column();
    const CharColumn end = textEnd();
    const std::int32_t point = wrapPoint();
    if (end.value > 0 && point >= end.value) {
        moveToLineEnd();
        newLine(true);
        return;
    }
    if (point < 1) return;
    const bool atEnd = cursor == end;
    moveToColumn(CharColumn(point));
    splitLine();
    cursorDown();
    std::int32_t indent = 0;
    if (options_.SmartIndent) {
        moveToLineStart();
        smartIndent(0);
        indent = document_.column().value;
    }
    moveToColumn(atEnd ? textEnd() : CharColumn(cursor.value - point + indent));
}

bool IsBlank(std::string_view text) {
    return IndentOf(text).size() == text.size();
}

std::string_view IndentOf(std::string_view text) {
    const std::size_t end = text.find_first_not_of(" \t\n");
    return end == std::string_view::npos ? text : text.substr(0, end);
}

}  // namespace vexa

#include "document/view/edit_view.h"

#include <algorithm>
#include <cstdio>

#include "base/strings.h"
#include "document/view/clipboard_block.h"
#include "document/view/electric_expansion.h"
#include "document/view/matching_bracket.h"
#include "document/view/word_motion.h"

namespace vexa {

namespace {

MarkMode ModeOf(MousePress press) {
    if (press == MousePress::Column) return MarkMode::Column;
    return press == MousePress::Lines ? MarkMode::Lines : MarkMode::Stream;
}

}  // namespace

EditView::EditView(TextDocument& document, EditorOptions& options, Notices& notices)
    : document_(document), options_(options), notices_(notices), editor_(document), marker_(document, editor_) {}

// ---- movements ---------------------------------------------------------------------------------------------------

void EditView::move(Movement movement, bool extending) {
    if (extending) marker_.begin(MarkMode::Stream);
    (this->*movement)();
    marker_.cursorMoved(extending);
}

void EditView::wordLeft() {
    if (const auto start = PreviousWordStart(document_.text(document_.currentLine()), document_.column())) {
        editor_.moveToColumn(*start);
    } else if (document_.currentLine().value > 0) {
        editor_.moveToLine(document_.currentLine() - 1);
        editor_.moveToLineEnd();
    }
}

void EditView::wordRight() {
    if (const auto start = NextWordStart(document_.text(document_.currentLine()), document_.column())) {
        editor_.moveToColumn(*start);
    } else if (document_.currentLine().value < document_.lineCount(LastUsed::Plain)) {
        editor_.moveToLine(document_.currentLine() + 1);
        editor_.moveToColumn(
            CharColumn(static_cast<std::int32_t>(IndentOf(document_.text(document_.currentLine())).size())));
    } else {
        editor_.moveToLineEnd();
    }
}

void EditView::turnPage(std::int32_t direction) {
    const std::int32_t lines = direction * std::max(rows_ - 1, 1);
    const LineIndex target = document_.currentLine() + lines;
    scrollBy(lines);
    editor_.moveToLineKeepingDisplay(std::clamp(target, LineIndex(0), lastLine()));
}

void EditView::home() {
    static constexpr Movement kSteps[] = {&EditView::windowStart, &EditView::documentStart};
    if (pressesInARow_ == 1) {
        editor_.moveToLineStart();
    } else {
        (this->*kSteps[std::min(pressesInARow_, 3) - 2])();
    }
}

void EditView::end() {
    static constexpr Movement kSteps[] = {&EditView::windowEnd, &EditView::documentEnd};
    if (pressesInARow_ == 1) {
        editor_.moveToLineEnd();
    } else {
        (this->*kSteps[std::min(pressesInARow_, 3) - 2])();
    }
}

void EditView::windowStart() {
    editor_.moveToLine(top_);
    editor_.moveToLineStart();
}

void EditView::windowEnd() {
    editor_.moveToLine(std::min(top_ + (rows_ - 1), lastLine()));
    editor_.moveToLineEnd();
}

void EditView::documentStart() {
    editor_.moveToLine(LineIndex(0));
    editor_.moveToLineStart();
}

void EditView::documentEnd() {
    editor_.moveToLine(LineIndex(document_.lineCount(LastUsed::Text)));
    editor_.moveToLineEnd();
}

// ---- changes -----------------------------------------------------------------------------------------------------

void EditView::typeCharacter(char c) {
    marker_.deleteMarked();
    if (c == ' ' && expandElectricWord()) return;
    if (options_.LineWrap && document_.displayColumn().value >= options_.WrapColumn) editor_.wordWrap();
    editor_.type(c, 1);
}

bool EditView::expandElectricWord() {
    return electric_ && options_.InsertMode && ExpandElectricWord(document_, editor_, electric_->list());
}

void EditView::enter() {
    if (options_.InsertMode) marker_.deleteMarked();
    editor_.newLine(false);
}

void EditView::tab() {
    if (marker_.shiftLines(true)) return;
    if (options_.UseTabs) {
        typeCharacter('\t');
    } else {
        marker_.deleteMarked();
        const std::int32_t size = document_.tabSize();
        editor_.type(' ', size - document_.displayColumn().value % size);
    }
}

// Without marked lines the cursor goes back to the tab stop before it.
void EditView::backTab() {
    if (marker_.shiftLines(false)) return;
    const std::int32_t column = document_.displayColumn().value;
    editor_.moveToDisplayColumn(DisplayColumn(std::max(column - 1, 0) / document_.tabSize() * document_.tabSize()));
}

void EditView::backspace() {
    if (!marker_.deleteMarked()) editor_.backspace(1);
}

void EditView::deleteKey() {
    if (!marker_.deleteMarked()) editor_.deleteChars(1);
}

void EditView::deleteWord() {
    const CharColumn before = document_.column();
    const auto start = PreviousWordStart(document_.text(document_.currentLine()), before);
    editor_.moveToColumn(start.value_or(CharColumn(0)));
    editor_.deleteInLine(before - document_.column());
}

// ---- commands ----------------------------------------------------------------------------------------------------

void EditView::finish() {
    document_.undo().nextGroup();
    bringCaretIntoSight(false);
}

bool EditView::takeBack(bool (UndoHistory::*step)(), TextId refusal) {
    document_.setInUndo(true);
    const bool done = (document_.undo().*step)();
    if (done) {
        marker_.stopExtending();
        bringCaretIntoSight(true);
    } else {
        notices_.status(LoadText(refusal), true, true);
    }
    document_.setInUndo(false);
    return done;
}

bool EditView::undo() {
    return takeBack(&UndoHistory::undo, TextId::NothingToUndo);
}

bool EditView::redo() {
    return takeBack(&UndoHistory::redo, TextId::NothingToRedo);
}

bool EditView::changeCase(CaseChange change) {
    const bool changed = ChangeCase(document_, editor_, change);
    finish();
    return changed;
}

void EditView::cutBlock() {
    if (clipboard_) ClipboardBlock(document_, editor_, marker_, *clipboard_).cut();
}

void EditView::copyBlock() {
    if (clipboard_) ClipboardBlock(document_, editor_, marker_, *clipboard_).copy();
}

void EditView::pasteBlock() {
    if (clipboard_) ClipboardBlock(document_, editor_, marker_, *clipboard_).paste();
}

void EditView::cut() {
    cutBlock();
    finish();
}

void EditView::copy() {
    copyBlock();
    finish();
}

void EditView::paste() {
    pasteBlock();
    finish();
}

void EditView::clear() {
    const BusyCursor busy(notices_);
    deleteKey();
    finish();
}

void EditView::selectAll() {
    marker_.markAll();
    finish();
}

void EditView::moveTo(LineIndex line, std::optional<CharColumn> column) {
    const LineIndex last(document_.lines().capacity() - 1);
    editor_.moveToLine(std::clamp(line, LineIndex(0), last));
    if (column) editor_.moveToColumn(*column);
    marker_.cursorMoved(false);
    finish();
}

void EditView::goTo(LineIndex line, CharColumn column) {
    moveTo(line, column);
}

std::int32_t EditView::goToLine(std::int32_t number) {
    moveTo(LineIndex(std::max(number, 1) - 1), std::nullopt);
    return document_.currentLine().value + 1;
}

BookmarkResult EditView::jumpToBookmark(std::int32_t n) {
    if (!Bookmarks::hasNumber(n)) return BookmarkResult::BadNumber;
    const std::optional<LineIndex> line = document_.bookmarks().line(n);
    if (!line) return BookmarkResult::NotSet;
    moveTo(*line, CharColumn(0));
    return BookmarkResult::Done;
}

void EditView::dropBookmark(std::int32_t n) {
    if (document_.dropBookmark(n) == BookmarkResult::Done) {
        notices_.status(FillText(TextId::BookmarkDropped, {std::to_string(n)}), true, false);
    } else {
        notices_.status(LoadText(TextId::BadBookmark), true, true);
    }
}

bool EditView::toMatchingBracket() {
    const auto bracket = BracketAt(document_, {document_.currentLine(), document_.column()});
    const auto partner = bracket ? MatchingBracket(document_, *bracket) : std::nullopt;
    if (partner) {
        moveTo(partner->line, partner->column);
    } else {
        notices_.status(LoadText(bracket ? TextId::NoMatchingBracket : TextId::NoBracketAtCursor), true, true);
    }
    return partner.has_value();
}

void EditView::toWindowStart() {
    move(&EditView::windowStart, false);
    finish();
}

void EditView::toWindowEnd() {
    move(&EditView::windowEnd, false);
    finish();
}

void EditView::toDocumentStart() {
    move(&EditView::documentStart, false);
    finish();
}

void EditView::toDocumentEnd() {
    move(&EditView::documentEnd, false);
    finish();
}

// ---- mouse -------------------------------------------------------------------------------------------------------

void EditView::place(Cell cell) {
    editor_.moveToLine(std::clamp(top_ + cell.row, LineIndex(0), lastLine()));
    editor_.moveToDisplayColumn(DisplayColumn(std::max(left_.value + cell.column, 0)));
}

void EditView::press(Cell cell, bool extend, MousePress how) {
    mousePress_ = how;
    lastKey_ = {};
    if (extend) marker_.begin(ModeOf(how));
    place(cell);
    marker_.cursorMoved(extend);
    if (how == MousePress::Lines) drag(cell);
    if (how == MousePress::Word) pressWord();
    bringCaretIntoSight(false);
}

// The word under the mouse stays marked wherever the mouse is dragged to.
void EditView::pressWord() {
    const LineIndex line = document_.currentLine();
    const CharSpan word =
        WordAt(document_.text(line), document_.column()).value_or(CharSpan{document_.column(), document_.column()});
    pressedWord_ = {{line, document_.toDisplay(line, word.begin)}, {line, document_.toDisplay(line, word.end)}};
    if (!word.isEmpty()) dragWords();
}

void EditView::dragWords() {
    const LineIndex line = document_.currentLine();
    const auto word = WordAt(document_.text(line), document_.column());
    const bool isBefore = MarkPoint{line, document_.displayColumn()} < pressedWord_.start;
    marker_.begin(MarkMode::Stream);
    marker_.setAnchor(isBefore ? pressedWord_.end : pressedWord_.start);
    if (word) editor_.moveToColumn(isBefore ? word->begin : word->end);
    marker_.cursorMoved(true);
}

void EditView::drag(Cell cell) {
    if (caret() == cell && mousePress_ != MousePress::Lines) return;
    if (mousePress_ != MousePress::Word) marker_.begin(ModeOf(mousePress_));
    place(cell);
    if (mousePress_ == MousePress::Word) {
        dragWords();
    } else {
        marker_.cursorMoved(true);
    }
    bringCaretIntoSight(false);
}

void EditView::release() {
    finish();
}

// ---- window ------------------------------------------------------------------------------------------------------

void EditView::resize(std::int32_t rows, std::int32_t columns) {
    rows_ = std::max(rows, 1);
    columns_ = std::max(columns, 1);
}

LineIndex EditView::lastLine() const {
    return std::max(LineIndex(document_.lineCount(LastUsed::Plain)), document_.currentLine());
}

DisplayColumn EditView::widestColumn() const {
    DisplayColumn widest(kLastColumn);
    for (std::int32_t row = 0; row <= rows_; ++row) {
        const auto length = static_cast<std::int32_t>(document_.text(top_ + row).size());
        widest = std::max(widest, document_.toDisplay(top_ + row, CharColumn(length)));
    }
    return std::max(widest, document_.displayColumn()) + 1;
}

void EditView::scrollToLine(LineIndex top) {
    top_ = std::clamp(top, LineIndex(0), lastLine());
}

void EditView::scrollToColumn(DisplayColumn left) {
    left_ = std::clamp(left, DisplayColumn(0), widestColumn());
}

void EditView::scrollBy(std::int32_t lines) {
    scrollToLine(top_ + lines);
}

void EditView::centreCursorLine() {
    top_ = LineIndex(std::max(document_.currentLine().value - rows_ / 2, 0));
}

// Scrolls no further than it must, except sideways, where typing at the edge would else scroll at every key.
void EditView::bringCaretIntoSight(bool centre) {
    const LineIndex line = document_.currentLine();
    if (centre && (line < top_ || line >= top_ + rows_)) centreCursorLine();
    top_ = std::clamp(top_, line - (rows_ - 1), line);
    const DisplayColumn column = document_.displayColumn();
    const std::int32_t step = columns_ / 4;
    if (column < left_) left_ = DisplayColumn(std::max(column.value - step, 0));
    if (column >= left_ + columns_) left_ = column - (columns_ - 1 - step);
}

std::optional<Cell> EditView::caret() const {
    const Cell cell{document_.currentLine() - top_, document_.displayColumn() - left_};
    if (cell.row < 0 || cell.row > rows_ || cell.column < 0 || cell.column > columns_) return std::nullopt;
    return cell;
}

std::string EditView::positionText() const {
    char text[64];
    std::snprintf(text, sizeof text, " L:%5.5d C:%3.3d", static_cast<int>(document_.currentLine().value + 1),
                  static_cast<int>(document_.displayColumn().value + 1));
    return text;
}

}  // namespace vexa

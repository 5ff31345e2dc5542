#include "document/view/edit_view.h"

#include <algorithm>

#include "document/view/matching_bracket.h"
#include "document/view/view_keys.h"
#include "document/view/word_motion.h"

namespace vexa {

namespace {

MarkMode ModeOf(MousePress press) {
    if (press == MousePress::Column) return MarkMode::Column;
    return press == MousePress::Lines ? MarkMode::Lines : MarkMode::Stream;
}

// The run-time library's formatting would bring its floating point along.
std::string ZeroPadded(std::int32_t number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

EditView::EditView(TextDocument& document, EditorOptions& options, Notices& notices)
    : editing_(document, options, notices) {}

// ---- keys --------------------------------------------------------------------------------------------------------

bool EditView::typedCharacter(const KeyEvent& event) {
    for (std::uint16_t n = 0; n < event.repeat; ++n)
        TypeCharacter(editing_, static_cast<char>(event.character));
    lastKey_ = event;
    finish();
    return true;
}

bool EditView::key(const KeyEvent& event) {
    if (event.key == kKeyNone) return typedCharacter(event);
    const ViewKey* row = FindViewKey(event);
    if (row == nullptr) return false;
    for (std::uint16_t n = 0; n < event.repeat; ++n) {
        editing_.pressesInARow = event == lastKey_ ? editing_.pressesInARow + 1 : 1;
        lastKey_ = event;
        if (row->kind == ViewKey::kMove) {
            Move(editing_, row->action, event.shift);
        } else {
            row->action(editing_);
        }
    }
    finish();
    return true;
}

// ---- commands ----------------------------------------------------------------------------------------------------

void EditView::finish() {
    document().history().nextGroup();
    editing_.viewport.bringCaretIntoSight(false);
}

void EditView::carryOut(ViewAction edit) {
    edit(editing_);
    finish();
}

void EditView::moveBy(ViewAction movement) {
    Move(editing_, movement, false);
    finish();
}

bool EditView::takeBack(bool (UndoHistory::*step)(), TextId refusal) {
    const bool done = (document().history().*step)();
    if (done) {
        editing_.marker.stopExtending();
        editing_.viewport.bringCaretIntoSight(true);
    } else {
        editing_.notices.status(LoadText(refusal), true, true);
    }
    return done;
}

bool EditView::undo() {
    return takeBack(&UndoHistory::undo, TextId::NothingToUndo);
}

bool EditView::redo() {
    return takeBack(&UndoHistory::redo, TextId::NothingToRedo);
}

bool EditView::changeCase(CaseChange change) {
    const bool changed = ChangeCase(document(), editing_.editor, change);
    finish();
    return changed;
}

void EditView::clear() {
    const BusyCursor busy(editing_.notices);
    carryOut(DeleteKey);
}

void EditView::moveTo(LineIndex line, std::optional<CharColumn> column) {
    const LineIndex last(document().lines().capacity() - 1);
    editing_.editor.moveToLine(std::clamp(line, LineIndex(0), last));
    if (column) editing_.editor.moveToColumn(*column);
    editing_.marker.cursorMoved(false);
    finish();
}

void EditView::goTo(LineIndex line, CharColumn column) {
    moveTo(line, column);
}

std::int32_t EditView::goToLine(std::int32_t number) {
    moveTo(LineIndex(std::max(number, 1) - 1), std::nullopt);
    return document().currentLine().value + 1;
}

BookmarkResult EditView::jumpToBookmark(std::int32_t n) {
    if (!Bookmarks::hasNumber(n)) return BookmarkResult::BadNumber;
    const std::optional<LineIndex> line = document().bookmarks().line(n);
    if (!line) return BookmarkResult::NotSet;
    moveTo(*line, CharColumn(0));
    return BookmarkResult::Done;
}

bool EditView::toMatchingBracket() {
    const auto bracket = BracketAt(document(), {document().currentLine(), document().column()});
    const auto partner = bracket ? MatchingBracket(document(), *bracket) : std::nullopt;
    if (partner) {
        moveTo(partner->line, partner->column);
    } else {
        editing_.notices.status(LoadText(bracket ? TextId::NoMatchingBracket : TextId::NoBracketAtCursor), true, true);
    }
    return partner.has_value();
}

// ---- mouse -------------------------------------------------------------------------------------------------------

void EditView::moveToCell(Cell cell) {
    editing_.editor.moveToLine(std::clamp(topLine() + cell.row, LineIndex(0), lastLine()));
    editing_.editor.moveToDisplayColumn(DisplayColumn(std::max(leftColumn().value + cell.column, 0)));
}

bool EditView::isMarked(Cell cell) const {
    return IsMarkedAt(document(), topLine() + cell.row, leftColumn() + cell.column);
}

void EditView::press(Cell cell, bool extend, MousePress how) {
    mousePress_ = how;
    lastKey_ = {};
    if (extend) editing_.marker.begin(ModeOf(how));
    moveToCell(cell);
    editing_.marker.cursorMoved(extend);
    if (how == MousePress::Lines) drag(cell);
    if (how == MousePress::Word) pressWord();
    editing_.viewport.bringCaretIntoSight(false);
}

// The word under the mouse stays marked wherever the mouse is dragged to.
void EditView::pressWord() {
    const LineIndex line = document().currentLine();
    const CharSpan word =
        WordAt(document().text(line), document().column()).value_or(CharSpan{document().column(), document().column()});
    pressedWord_ = {{line, document().toDisplay(line, word.begin)}, {line, document().toDisplay(line, word.end)}};
    if (!word.isEmpty()) dragWords();
}

void EditView::dragWords() {
    const LineIndex line = document().currentLine();
    const auto word = WordAt(document().text(line), document().column());
    const bool isBefore = MarkPoint{line, document().displayColumn()} < pressedWord_.start;
    editing_.marker.begin(MarkMode::Stream);
    editing_.marker.setAnchor(isBefore ? pressedWord_.end : pressedWord_.start);
    if (word) editing_.editor.moveToColumn(isBefore ? word->begin : word->end);
    editing_.marker.cursorMoved(true);
}

void EditView::drag(Cell cell) {
    if (caret() == cell && mousePress_ != MousePress::Lines) return;
    if (mousePress_ != MousePress::Word) editing_.marker.begin(ModeOf(mousePress_));
    moveToCell(cell);
    if (mousePress_ == MousePress::Word) {
        dragWords();
    } else {
        editing_.marker.cursorMoved(true);
    }
    editing_.viewport.bringCaretIntoSight(false);
}

void EditView::release() {
    finish();
}

// ---- what is seen ------------------------------------------------------------------------------------------------

ViewRow EditView::render(std::int32_t row) const {
    return RenderRow(document(), topLine() + row, leftColumn(), columns(), highlighting_);
}

std::string EditView::positionText() const {
    return " L:" + ZeroPadded(document().currentLine().value + 1, 5) +
           " C:" + ZeroPadded(document().displayColumn().value + 1, 3);
}

}  // namespace vexa

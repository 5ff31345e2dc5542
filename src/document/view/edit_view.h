// The edit view: turns keys, mouse and commands into operations on a document, scrolls, and renders the text to a grid
// of cells. A window only hands its events in and draws the rows that come out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/strings.h"
#include "base/units.h"
#include "document/view/case_change.h"
#include "document/view/editing.h"
#include "document/view/edits.h"
#include "document/view/key_event.h"
#include "document/view/movements.h"
#include "document/view/row_renderer.h"

namespace vexa {

// What a pressed mouse button marks when the mouse is moved: a stream from the pressed cell, a column, whole lines (the
// pressed one at once) or whole words (the pressed one at once).
enum class MousePress : std::uint8_t { Stream, Column, Lines, Word };

class EditView {
  public:
    EditView(TextDocument& document, EditorOptions& options, Notices& notices);

    TextDocument& document() { return editing_.document; }
    const TextDocument& document() const { return editing_.document; }

    // ---- what it works with ----

    // Without a clipboard, cutting, copying and pasting do nothing.
    void setClipboard(ClipboardStore& clipboard) { editing_.clipboard = &clipboard; }
    // The words that a blank typed in insert mode expands; none without them.
    void setElectric(ElectricWords& words) { editing_.electric = &words; }

    // ---- events: each is one undo group and leaves the caret in sight ----

    // Carries a keystroke out; false when the view has no use for it.
    bool key(const KeyEvent& event);
    // A mouse button pressed at a cell; with extend the marking grows from the caret to the cell.
    void press(Cell cell, bool extend, MousePress how = MousePress::Stream);
    // Whether the cell shows a character that is marked.
    bool isMarked(Cell cell) const;
    // The mouse moved with its button held: marks from the pressed cell to this one, scrolling when it lies outside.
    // All moves up to the release are one undo group.
    void drag(Cell cell);
    void release();
    bool isMarkingLines() const { return mousePress_ == MousePress::Lines; }

    // Both tell the user when there is nothing to do and are false then.
    bool undo();
    bool redo();
    void cut() { carryOut(Cut); }
    void copy() { carryOut(Copy); }
    void paste() { carryOut(Paste); }
    void clear();  // deletes the marked area, or without one the character at the caret
    void selectAll() { carryOut(MarkAll); }
    // Changes the case of the marked text or of the word at the caret; tells the user and is false when there is none.
    bool changeCase(CaseChange change);
    // Goes to the partner of the bracket at or before the caret; tells the user and is false when there is none.
    bool toMatchingBracket();
    // Carries one of the movements out, without marking.
    void moveBy(ViewAction movement);
    void goTo(LineIndex line, CharColumn column);
    // Goes to a line by its number, counted from 1 and limited to the lines that there is room for, used or not; any
    // number below 1 means the first. The cursor takes the column it had in that line. Returns the number reached.
    std::int32_t goToLine(std::int32_t number);
    // Goes to the start of a bookmark's line.
    BookmarkResult jumpToBookmark(std::int32_t n);

    // For commands that live outside the view: what they work with, and how each of them ends. The caller of finish()
    // closes one undo group and has the caret in sight.
    LineEditor& editor() { return editing_.editor; }
    Marker& marker() { return editing_.marker; }
    void finish();

    // ---- window: which part of the document is in sight ----

    void resize(std::int32_t rows, std::int32_t columns) { editing_.viewport.resize(rows, columns); }
    void scrollToLine(LineIndex top) { editing_.viewport.scrollToLine(top); }
    void scrollToColumn(DisplayColumn left) { editing_.viewport.scrollToColumn(left); }
    void scrollBy(std::int32_t lines) { editing_.viewport.scrollBy(lines); }
    void centreCursorLine() { editing_.viewport.centreCursorLine(); }
    LineIndex topLine() const { return editing_.viewport.top(); }
    DisplayColumn leftColumn() const { return editing_.viewport.left(); }
    std::int32_t rows() const { return editing_.viewport.rows(); }
    std::int32_t columns() const { return editing_.viewport.columns(); }
    LineIndex lastLine() const { return editing_.viewport.lastLine(); }
    DisplayColumn widestColumn() const { return editing_.viewport.widestColumn(); }
    std::optional<Cell> caret() const { return editing_.viewport.caret(); }

    // ---- what is seen ----

    // The row, also one below the last whole one.
    ViewRow render(std::int32_t row) const;
    // Whether the text is shown in the colours of its tokens.
    void setHighlighting(bool on) { highlighting_ = on; }
    bool overwrites() const { return !editing_.options.InsertMode; }
    std::string positionText() const;  // " L:%5.5d C:%3.3d", both counted from 1
    const char* modeText() const { return overwrites() ? "OVR" : "INS"; }

  private:
    bool typedCharacter(const KeyEvent& event);
    void carryOut(ViewAction edit);
    void moveTo(LineIndex line, std::optional<CharColumn> column);
    bool takeBack(bool (UndoHistory::*step)(), TextId refusal);
    void moveToCell(Cell cell);
    void pressWord();
    void dragWords();

    Editing editing_;
    bool highlighting_ = true;
    KeyEvent lastKey_;
    MousePress mousePress_ = MousePress::Stream;
    struct {
        MarkPoint start;
        MarkPoint end;
    } pressedWord_;
};

}  // namespace vexa

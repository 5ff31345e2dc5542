// The edit view: turns keys, mouse and commands into operations on a document, scrolls, and renders the text to a grid
// of cells. A window only hands its events in and draws the rows that come out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/editor_options.h"
#include "base/notices.h"
#include "base/strings.h"
#include "base/units.h"
#include "document/text/text_document.h"
#include "document/view/case_change.h"
#include "document/view/clipboard_store.h"
#include "document/view/key_event.h"
#include "document/view/line_editor.h"
#include "document/view/marker.h"
#include "document/view/row_renderer.h"
#include "language/electric_list.h"

namespace vexa {

// A place in the window; may lie outside it.
struct Cell {
    std::int32_t row = 0;
    std::int32_t column = 0;

    bool operator==(const Cell&) const = default;
};

// What a pressed mouse button marks when the mouse is moved: a stream from the place, a column, whole lines (the
// pressed one at once) or whole words (the pressed one at once).
enum class MousePress : std::uint8_t { Stream, Column, Lines, Word };

class EditView {
  public:
    EditView(TextDocument& document, EditorOptions& options, Notices& notices);

    TextDocument& document() { return document_; }
    const TextDocument& document() const { return document_; }

    // ---- events: each is one undo group and leaves the caret in sight ----

    // Carries a keystroke out; false when the view has no use for it.
    bool key(const KeyEvent& event);
    // A mouse button pressed at a cell; with extend the marking grows from the caret to the cell.
    void press(Cell cell, bool extend, MousePress how = MousePress::Stream);
    // Whether the cell shows a character that is marked.
    bool isMarked(Cell cell) const { return IsMarkedAt(document_, top_ + cell.row, left_ + cell.column); }
    // The mouse moved with its button held: marks from the pressed place to the cell, scrolling when it lies outside.
    // All moves up to the release are one undo group.
    void drag(Cell cell);
    void release();
    bool isMarkingLines() const { return mousePress_ == MousePress::Lines; }

    // Both tell the user when there is nothing to do and are false then.
    bool undo();
    bool redo();
    void clear();  // deletes the marked area, or without one the character at the caret
    // Changes the case of the marked text or of the word at the caret; tells the user and is false when there is none.
    bool changeCase(CaseChange change);
    // The clipboard, without which the three commands do nothing.
    void setClipboard(ClipboardStore& clipboard) { clipboard_ = &clipboard; }
    // The words that a blank typed in insert mode expands; none without them.
    void setElectric(ElectricWords& words) { electric_ = &words; }
    void cut();
    void copy();
    void paste();
    void selectAll();
    void goTo(LineIndex line, CharColumn column);
    // Goes to a line by its number, counted from 1 and limited to the lines that there is room for, used or not; any
    // number below 1 means the first. The cursor takes the place it had in that line. Returns the number reached.
    std::int32_t goToLine(std::int32_t number);
    // Sets a bookmark to the caret's line, and tells the user.
    void dropBookmark(std::int32_t n);
    // Goes to the start of a bookmark's line.
    BookmarkResult jumpToBookmark(std::int32_t n);
    // Goes to the partner of the bracket at or before the caret; tells the user and is false when there is none.
    bool toMatchingBracket();
    void toWindowStart();
    void toWindowEnd();
    void toDocumentStart();
    void toDocumentEnd();

    // For commands that live outside the view: what they work with, and how each of them ends. The caller of finish()
    // closes one undo group and has the caret in sight.
    LineEditor& editor() { return editor_; }
    Marker& marker() { return marker_; }
    void finish();

    // ---- window ----

    // The number of whole rows and columns that the window shows, each taken as at least 1.
    void resize(std::int32_t rows, std::int32_t columns);
    void scrollToLine(LineIndex top);
    void scrollToColumn(DisplayColumn left);
    void scrollBy(std::int32_t lines);
    void centreCursorLine();
    LineIndex topLine() const { return top_; }
    DisplayColumn leftColumn() const { return left_; }
    std::int32_t rows() const { return rows_; }
    std::int32_t columns() const { return columns_; }
    // The last line and the widest column that scrolling must be able to reach.
    LineIndex lastLine() const;
    DisplayColumn widestColumn() const;

    // ---- what is seen ----

    // The row, also one below the last whole one.
    ViewRow render(std::int32_t row) const { return RenderRow(document_, top_ + row, left_, columns_, highlighting_); }
    // Whether the text is shown in the colours of its tokens.
    void setHighlighting(bool on) { highlighting_ = on; }
    // Where the caret stands in the window; none while it is out of sight.
    std::optional<Cell> caret() const;
    bool overwrites() const { return !options_.InsertMode; }
    std::string positionText() const;  // " L:%5.5d C:%3.3d", both counted from 1
    const char* modeText() const { return overwrites() ? "OVR" : "INS"; }

  private:
    friend struct ViewKeys;  // the table of keys and what they do
    using Movement = void (EditView::*)();

    bool typedCharacter(const KeyEvent& event);
    void move(Movement movement, bool extending);
    void bringCaretIntoSight(bool centre);
    void place(Cell cell);
    void pressWord();
    void dragWords();
    void moveTo(LineIndex line, std::optional<CharColumn> column);
    bool takeBack(bool (UndoHistory::*step)(), TextId refusal);

    void charLeft() { editor_.moveLeft(1); }
    void charRight() { editor_.moveRight(1); }
    void wordLeft();
    void wordRight();
    void lineUp() { editor_.cursorUp(); }
    void lineDown() { editor_.cursorDown(); }
    void pageUp() { turnPage(-1); }
    void pageDown() { turnPage(+1); }
    void turnPage(std::int32_t direction);
    void home();
    void end();
    void windowStart();
    void windowEnd();
    void documentStart();
    void documentEnd();

    void typeCharacter(char c);
    bool expandElectricWord();
    void enter();
    void tab();
    void backTab();
    void backspace();
    void deleteKey();
    void deleteWord();
    void deleteLine() { editor_.deleteLine(); }
    void deleteToEnd() { editor_.deleteToEnd(); }
    void deleteToStart() { editor_.deleteToStart(); }
    void toggleInsert() { options_.InsertMode = !options_.InsertMode; }
    void markStream() { marker_.toggle(MarkMode::Stream); }
    void markLines() { marker_.toggle(MarkMode::Lines); }
    void markColumn() { marker_.toggle(MarkMode::Column); }
    void clearMark() { marker_.clear(); }
    void cutBlock();
    void copyBlock();
    void pasteBlock();
    void dropBookmarkOfKey() { dropBookmark(lastKey_.key - '0'); }

    TextDocument& document_;
    EditorOptions& options_;
    Notices& notices_;
    LineEditor editor_;
    Marker marker_;
    LineIndex top_;
    DisplayColumn left_;
    std::int32_t rows_ = 1;
    std::int32_t columns_ = 1;
    bool highlighting_ = true;
    ClipboardStore* clipboard_ = nullptr;
    ElectricWords* electric_ = nullptr;
    // How often in a row the last key was pressed: Home and End go further each time.
    KeyEvent lastKey_;
    int pressesInARow_ = 0;
    MousePress mousePress_ = MousePress::Stream;
    struct {
        MarkPoint start;
        MarkPoint end;
    } pressedWord_;
};

}  // namespace vexa

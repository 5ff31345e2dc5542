// The editing operations: each carries its steps out on the document and records them.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include "base/editor_options.h"
#include "base/units.h"
#include "document/text/text_document.h"

namespace vexa {

// Works at the document's cursor. The caller closes the undo group.
class LineEditor {
  public:
    explicit LineEditor(TextDocument& document) : document_(document), options_(document.options()) {}

    // ---- moving ----
    void moveToColumn(CharColumn column);
    void moveToDisplayColumn(DisplayColumn column);
    bool moveLeft(std::int32_t n);  // false when the cursor stood at the line's start
    void moveRight(std::int32_t n) { moveToColumn(document_.column() + n); }
    void moveToLineStart() { moveToColumn(CharColumn(0)); }
    void moveToLineEnd() { moveToColumn(textEnd()); }
    // Both keep the display column.
    void cursorUp();
    void cursorDown();  // makes a line below the last slot, so that there is always a way down
    // Goes to a line within the capacity, keeping the character column of that line.
    void moveToLine(LineIndex line);
    void moveToLineKeepingDisplay(LineIndex line);

    // ---- typing and deleting ----
    void type(char c, std::int32_t n);
    void typeText(std::string_view text);
    void deleteChars(std::int32_t n);
    void backspace(std::int32_t n);
    void deleteToStart();
    void deleteToEnd();
    // Deletes the characters that begin between two display columns.
    void deleteColumns(DisplayColumn from, DisplayColumn to);
    // Deletes the current line; the cursor keeps its display column on the line that follows.
    void deleteLine();
    void deleteCurrentLine();  // the same, the cursor where that line had it
    // Deletes from the cursor a number of characters, no further than the text's end.
    void deleteInLine(std::int32_t n);
    // Deletes the characters between two columns, also beyond the last that the cursor reaches; it goes to from or as
    // near as it can.
    void deleteBetween(CharColumn from, CharColumn to);
    void joinNextLine();
    void splitLine();

    // Fills the space between the text's end and a cursor beyond it.
    void pad();
    // Inserts a tab, or blanks as UseTabs says, up to the next tab stop; in overwrite mode too.
    void insertIndent();
    // Makes a new line of what is after the cursor and goes to its start.
    void breakLine();
    // Enter. Forced, it makes a new line in overwrite mode too.
    void newLine(bool force);
    // Gives the current line the indentation of the nearest line above that is not blank.
    void smartIndent(std::int32_t extra);
    // Moves the last word before the cursor to a line of its own; called when the cursor has reached the wrap column.
    void wordWrap();

    CharColumn textEnd() const;

    // Carries a step out and records it.
    template <class Action, class... Arguments>
    void run(Arguments&&... arguments) {
        auto action = std::make_unique<Action>(document_, std::forward<Arguments>(arguments)...);
        document_.history().makeRoom();
        action->perform();
        document_.history().record(std::move(action));
    }

  private:
    void typeBlanks(char blank, std::int32_t n);
    void insertText(std::string_view text);
    void overwriteText(std::string_view text);
    void takeOverIndent(std::string_view indent);
    std::int32_t wrapPoint() const;

    TextDocument& document_;
    const EditorOptions& options_;
};

// Whether a text is made only of white space: blanks, tabs and line feeds.
bool IsBlank(std::string_view text);
// The leading white space of a text.
std::string_view IndentOf(std::string_view text);

}  // namespace vexa

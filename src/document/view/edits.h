// What keys and commands change at the cursor: rows of the view's keys and commands of the frame point to it.
#pragma once

#include <cstdint>

#include "document/view/editing.h"

namespace vexa {

// In place of the marked area. A blank may expand the word before it, and a character beyond the wrap column may move
// the word that it ends to a new line.
void TypeCharacter(Editing& editing, char c);

void Enter(Editing& editing);
// With marked lines, the two indent and outdent them.
void Tab(Editing& editing);
void BackTab(Editing& editing);
// Each deletes the marked area, or without one a character before or at the cursor.
void Backspace(Editing& editing);
void DeleteKey(Editing& editing);
void DeleteWord(Editing& editing);
void DeleteLine(Editing& editing);
void DeleteToEnd(Editing& editing);
void DeleteToStart(Editing& editing);

void MarkStream(Editing& editing);
void MarkLines(Editing& editing);
void MarkColumn(Editing& editing);
void MarkAll(Editing& editing);
void Unmark(Editing& editing);

void Cut(Editing& editing);
void Copy(Editing& editing);
void Paste(Editing& editing);

void ToggleInsert(Editing& editing);

// Sets bookmark n to the caret's line and tells the user; a number that no bookmark has is refused.
void DropBookmark(Editing& editing, std::int32_t n);
template <std::int32_t n>
void DropBookmark(Editing& editing) {
    DropBookmark(editing, n);
}

}  // namespace vexa

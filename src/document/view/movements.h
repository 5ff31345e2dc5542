// The movements of the cursor: rows of the view's keys and commands of the frame point to them.
#pragma once

#include "document/view/editing.h"

namespace vexa {

void CharLeft(Editing& editing);
void CharRight(Editing& editing);
void WordLeft(Editing& editing);
void WordRight(Editing& editing);
void LineUp(Editing& editing);
void LineDown(Editing& editing);
void PageUp(Editing& editing);
void PageDown(Editing& editing);
// To the start or end of the line; pressed again, of the window; pressed once more, of the document.
void HomeKey(Editing& editing);
void EndKey(Editing& editing);
void WindowStart(Editing& editing);
void WindowEnd(Editing& editing);
void DocumentStart(Editing& editing);
void DocumentEnd(Editing& editing);

// Carries a movement out; with `marks` the marking grows from where the cursor was to where it gets.
void Move(Editing& editing, ViewAction movement, bool marks);

}  // namespace vexa

// The boxes and dialogs of the editor, answered as a user answers them.
#pragma once

#include <windows.h>

#include <string>

namespace vexa::test {

// The text of a message box.
std::string BoxText(HWND box);
// Presses a button by its number (IDYES and so on) and waits until the box has gone; false when it stays.
bool Press(HWND box, int button);
// Writes into the name field of a file dialog, in either style, and confirms it.
bool EnterFileName(HWND dialog, const std::string& name);

}  // namespace vexa::test

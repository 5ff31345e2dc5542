// Boxes that ask and tell.
#pragma once

#include <windows.h>

#include <string>

namespace vexa {

// Sounds the exclamation beep and shows a box with the exclamation icon. Buttons is MB_OK, MB_YESNO or MB_YESNOCANCEL;
// the answer is the id of the button, IDCANCEL for a box that could not be shown.
int ShowBox(HWND owner, const std::string& text, const std::string& caption, UINT buttons);

// A box with the program's own icon, by its resource number.
void ShowAboutBox(HWND owner, const std::string& text, const std::string& caption, int icon);

}  // namespace vexa

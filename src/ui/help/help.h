// The editor's help file in the system's help viewer.
#pragma once

#include <windows.h>

namespace vexa {

// The topic about the keys.
inline constexpr DWORD kHelpOnKeys = 49153;

// Opens "Vexa.hlp" from the program's directory: HELP_INDEX, HELP_HELPONHELP, or HELP_CONTEXT with a topic's number.
void ShowHelp(HWND owner, UINT command, DWORD topic = 0);

}  // namespace vexa

// The editor's help file, shown by the viewer that the system and the settings call for.
#pragma once

#include <windows.h>

namespace vexa {

class HelpDesk;

// The topic about the keys.
inline constexpr DWORD kHelpOnKeys = 49153;

// What shows help from now on; nothing does without one.
void SetHelpDesk(HelpDesk* desk);
// Opens "Vexa.hlp" from the program's directory: HELP_INDEX, HELP_HELPONHELP, or HELP_CONTEXT with a topic's number.
void ShowHelp(HWND owner, UINT command, DWORD topic = 0);

// The program ends: lets go of the system's viewer.
void CloseHelp(HWND owner);

inline constexpr const char* kHelpWindowClass = "VexaHelp";
// Whether a window belongs to the help viewer, which uses its keys itself.
bool IsInHelpViewer(HWND window);

}  // namespace vexa

// The editor's help file, shown by the viewer that the system and the settings call for.
#pragma once

#include <windows.h>

#include "quickhelp/topic_numbers.h"

namespace vexa {

class HelpDesk;

// What shows help from now on; nothing does without one.
void SetHelpDesk(HelpDesk* desk);
// Opens "Vexa.hlp" from the program's directory: HELP_INDEX, HELP_CONTEXT with a topic's number, or HELP_HELPONHELP
// with that of the topic for a viewer that has no help on itself.
void ShowHelp(HWND owner, UINT command, DWORD topic = 0);

// The program ends: lets go of the system's viewer.
void CloseHelp(HWND owner);

inline constexpr const char* kHelpWindowClass = "VexaHelp";
// Whether a window belongs to the help viewer, which uses its keys itself.
bool IsInHelpViewer(HWND window);

}  // namespace vexa

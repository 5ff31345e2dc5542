// The system's dialog that asks for a font.
#pragma once

#include <windows.h>

namespace vexa {

// Offers the fonts of one width for all characters, beginning with the one described. False, and the description as it
// was, when the user cancels.
bool AskFixedPitchFont(HWND owner, LOGFONTA& description);

}  // namespace vexa

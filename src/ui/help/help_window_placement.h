// Where the help window stood, kept in section "Help Window" of the settings file.
#pragma once

#include <windows.h>

#include "base/config_store.h"

namespace vexa {

// The rectangle to open the window with, on a screen that is there now. Without a usable one in the settings it is that
// of the first time, at the resolution.
RECT LoadHelpWindowPlacement(const ConfigStore& store, int dpi);
// The rectangle of the window when it is neither minimised nor maximised.
void SaveHelpWindowPlacement(ConfigStore& store, HWND window);

}  // namespace vexa

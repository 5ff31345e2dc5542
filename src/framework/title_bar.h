// The title bar of a window in the dark, on systems that can draw it so.
#pragma once

#include <windows.h>

namespace vexa {

// Does nothing on systems that know only one kind of title bar.
void SetDarkTitleBar(HWND window, bool dark);

}  // namespace vexa

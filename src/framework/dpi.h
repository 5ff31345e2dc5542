// The resolution of a monitor; older systems have one resolution for all of them.
#pragma once

#include <windows.h>

namespace vexa {

// The resolution for which sizes in pixels are usually given, in dots an inch.
inline constexpr int kNormalDpi = 96;

// Sent to a top-level window that has come to a monitor of another resolution. Younger than the headers this is built
// for.
inline constexpr UINT kDpiChangedMessage = 0x02E0;

// The resolution at which a window is shown.
int DpiOf(HWND window);

// Pixels at a resolution for a size given at the normal one.
int Scaled(int pixels, int dpi);

// The font of status bars at a resolution.
LOGFONTA StatusFont(int dpi);

}  // namespace vexa

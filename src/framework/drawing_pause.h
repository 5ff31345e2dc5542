// Drawing once after many changes.
#pragma once

#include <windows.h>

namespace vexa {

// While it lives, the windows inside a window come and go unseen; then all is drawn at once. They still count as
// visible, without which the system would not arrange them: only the region in which they could be seen is empty.
// Inside another pause of the same window it leaves the drawing to that one; without a window it does nothing.
class DrawingPause {
  public:
    explicit DrawingPause(HWND window) : window_(window && !isPaused(window) ? window : nullptr) {
        if (window_) SetWindowRgn(window_, CreateRectRgn(0, 0, 0, 0), FALSE);
    }
    ~DrawingPause() {
        if (!window_) return;
        SetWindowRgn(window_, nullptr, FALSE);
        RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    DrawingPause(const DrawingPause&) = delete;
    DrawingPause& operator=(const DrawingPause&) = delete;

  private:
    static bool isPaused(HWND window) {
        const HRGN region = CreateRectRgn(0, 0, 0, 0);
        const bool hasRegion = GetWindowRgn(window, region) != ERROR;
        DeleteObject(region);
        return hasRegion;
    }

    HWND window_;
};

}  // namespace vexa

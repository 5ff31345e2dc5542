// Drawing: device contexts of windows, pictures in memory, and the metrics of fonts.
#pragma once

#include <windows.h>

#include <string_view>

#include "framework/handle.h"

namespace vexa {

// The device context of a window that is not painting just now, for measuring. Value of a Handle, as it needs its
// window to be given back.
struct BorrowedDc {
    HWND window = nullptr;
    HDC dc = nullptr;

    bool operator==(const BorrowedDc&) const = default;
};
struct BorrowedDcTraits {
    using Value = BorrowedDc;
    static void Close(const BorrowedDc& borrowed) { ReleaseDC(borrowed.window, borrowed.dc); }
};
using WindowDc = Handle<BorrowedDcTraits>;

WindowDc BorrowDc(HWND window);

// Keeps an object selected into a device context while it lives.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
    ~Selected() { SelectObject(dc_, previous_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc_;
    HGDIOBJ previous_;
};

// A picture in memory: drawn first, then shown at once, so that nobody sees it half drawn.
class OffScreenBitmap {
  public:
    OffScreenBitmap() = default;
    ~OffScreenBitmap();
    OffScreenBitmap(const OffScreenBitmap&) = delete;
    OffScreenBitmap& operator=(const OffScreenBitmap&) = delete;

    // Makes the picture at least so large, in pixels, for windows like that of the context. A device context to draw
    // on, or none when there is no memory for it.
    HDC prepare(HDC like, int width, int height);
    // Shows the picture's first width x height pixels at a position of the target.
    void show(HDC target, int x, int y, int width, int height) const;

  private:
    MemoryDc dc_;
    BitmapHandle bitmap_;
    HGDIOBJ first_ = nullptr;  // what the context held before the picture
    int width_ = 0;
    int height_ = 0;
};

// Fills a rectangle with one colour without creating a brush.
void FillColour(HDC dc, const RECT& area, COLORREF colour);

TEXTMETRICA MetricsOf(HWND window, HFONT font);
// In pixels.
int TextWidth(HWND window, HFONT font, std::string_view text);

}  // namespace vexa

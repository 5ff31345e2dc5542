#include "framework/dpi.h"

#include "framework/gdi.h"

namespace vexa {
namespace {

int SystemDpi() {
    const WindowDc dc = BorrowDc(nullptr);
    return dc ? GetDeviceCaps(dc.get().dc, LOGPIXELSY) : kNormalDpi;
}

using DpiForWindow = UINT(WINAPI*)(HWND);

// Only newer systems have the function, so it is looked up by name.
DpiForWindow FindDpiForWindow() {
    const HMODULE user = GetModuleHandleA("user32.dll");
    const FARPROC found = user ? GetProcAddress(user, "GetDpiForWindow") : nullptr;
    // Through void*: the compiler cannot know that the signature is the right one.
    return reinterpret_cast<DpiForWindow>(reinterpret_cast<void*>(found));
}

}  // namespace

int DpiOf(HWND window) {
    static const DpiForWindow dpiForWindow = FindDpiForWindow();
    const int dpi = dpiForWindow ? static_cast<int>(dpiForWindow(window)) : 0;
    return dpi > 0 ? dpi : SystemDpi();
}

int Scaled(int pixels, int dpi) {
    return MulDiv(pixels, dpi, kNormalDpi);
}

LOGFONTA StatusFont(int dpi) {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    metrics.lfStatusFont.lfHeight = MulDiv(metrics.lfStatusFont.lfHeight, dpi, SystemDpi());
    return metrics.lfStatusFont;
}

}  // namespace vexa

#include "framework/dpi.h"

#include "framework/gdi.h"
#include "framework/system_function.h"

namespace vexa {
namespace {

int SystemDpi() {
    const WindowDc dc = BorrowDc(nullptr);
    return dc ? GetDeviceCaps(dc.get().dc, LOGPIXELSY) : kNormalDpi;
}

using DpiForWindow = UINT WINAPI(HWND);

}  // namespace

int DpiOf(HWND window) {
    static DpiForWindow* const dpiForWindow = FindSystemFunction<DpiForWindow>("user32.dll", "GetDpiForWindow");
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

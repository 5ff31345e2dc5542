#include "ui/pixels.h"

#include <algorithm>
#include <cstdio>

#include "ui/wait.h"

namespace vexa::test {
namespace {

// What a window shows in a part of its inside is copied at once, as asking for single pixels takes long.
std::vector<std::uint32_t> PixelsIn(HWND window, const RECT& area) {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    POINT corner = {area.left, area.top};
    ClientToScreen(window, &corner);
    const HDC screen = GetDC(nullptr);
    const HDC copy = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, width, height, screen, corner.x, corner.y, SRCCOPY);
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = width;
    format.bmiHeader.biHeight = height;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    GetDIBits(copy, bitmap, 0, static_cast<UINT>(height), pixels.data(), &format, DIB_RGB_COLORS);
    SelectObject(copy, before);
    DeleteObject(bitmap);
    DeleteDC(copy);
    ReleaseDC(nullptr, screen);
    return pixels;
}

bool ShowsIn(HWND window, const RECT& area, COLORREF colour) {
    const std::uint32_t wanted = RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour));
    return WaitUntil([&] { return std::ranges::count(PixelsIn(window, area), wanted) > 0; });
}

}  // namespace

bool ShowsBackground(HWND window, COLORREF colour) {
    RECT inside{};
    GetClientRect(window, &inside);
    return ShowsIn(window, {1, inside.bottom - 2, 2, inside.bottom - 1}, colour);
}

bool ShowsInFirstLine(HWND window, COLORREF colour) {
    return ShowsIn(window, {0, 0, 80, 12}, colour);
}

std::vector<std::uint32_t> PixelsOf(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    return PixelsIn(window, inside);
}

}  // namespace vexa::test

#include "ui/pixels.h"

#include <cstdio>

#include "ui/wait.h"

namespace vexa::test {
namespace {

// What a window shows in a part of its inside is copied at once, as asking for single pixels takes long.
class Picture {
  public:
    Picture(HWND window, const RECT& area) : width_(area.right - area.left), height_(area.bottom - area.top) {
        POINT corner = {area.left, area.top};
        ClientToScreen(window, &corner);
        const HDC from = GetDC(nullptr);
        dc_ = CreateCompatibleDC(from);
        bitmap_ = CreateCompatibleBitmap(from, width_, height_);
        first_ = SelectObject(dc_, bitmap_);
        BitBlt(dc_, 0, 0, width_, height_, from, corner.x, corner.y, SRCCOPY);
        ReleaseDC(nullptr, from);
    }
    ~Picture() {
        SelectObject(dc_, first_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    bool has(COLORREF colour) const {
        for (int i = 0; i < width_ * height_; ++i) {
            if (GetPixel(dc_, i % width_, i / width_) == colour) return true;
        }
        return false;
    }
    std::vector<std::uint32_t> pixels() const {
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof(format.bmiHeader);
        format.bmiHeader.biWidth = width_;
        format.bmiHeader.biHeight = height_;
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        std::vector<std::uint32_t> all(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
        GetDIBits(dc_, bitmap_, 0, static_cast<UINT>(height_), all.data(), &format, DIB_RGB_COLORS);
        return all;
    }
    COLORREF first() const { return GetPixel(dc_, 0, 0); }

  private:
    int width_;
    int height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ first_;
};

}  // namespace

bool ShowsBackground(HWND window, COLORREF colour) {
    RECT inside{};
    GetClientRect(window, &inside);
    const RECT corner = {1, inside.bottom - 2, 2, inside.bottom - 1};
    const bool isShown = WaitUntil([&] { return Picture(window, corner).has(colour); });
    if (!isShown) std::fprintf(stderr, "background is %06lx\n", Picture(window, corner).first());
    return isShown;
}

bool ShowsInFirstLine(HWND window, COLORREF colour) {
    const RECT start = {0, 0, 80, 12};
    return WaitUntil([&] { return Picture(window, start).has(colour); });
}

std::vector<std::uint32_t> PixelsOf(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    return Picture(window, inside).pixels();
}

}  // namespace vexa::test

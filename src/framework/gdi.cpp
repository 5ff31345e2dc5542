#include "framework/gdi.h"

#include <algorithm>

namespace vexa {

WindowDc BorrowDc(HWND window) {
    const HDC dc = GetDC(window);
    return dc ? WindowDc(BorrowedDc{window, dc}) : WindowDc();
}

OffScreenBitmap::~OffScreenBitmap() {
    if (dc_ && first_) SelectObject(dc_.get(), first_);
}

HDC OffScreenBitmap::prepare(HDC like, int width, int height) {
    if (dc_ && width <= width_ && height <= height_) return dc_.get();
    width = std::max(width, width_);
    height = std::max(height, height_);
    if (!dc_) dc_.reset(CreateCompatibleDC(like));
    BitmapHandle bitmap(CreateCompatibleBitmap(like, width, height));
    if (!dc_ || !bitmap) return nullptr;
    const HGDIOBJ previous = SelectObject(dc_.get(), bitmap.get());
    if (!first_) first_ = previous;
    bitmap_ = std::move(bitmap);
    width_ = width;
    height_ = height;
    return dc_.get();
}

void OffScreenBitmap::show(HDC target, int x, int y, int width, int height) const {
    BitBlt(target, x, y, width, height, dc_.get(), 0, 0, SRCCOPY);
}

void FillColour(HDC dc, const RECT& area, COLORREF colour) {
    SetBkColor(dc, colour);
    ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}

TEXTMETRICA MetricsOf(HWND window, HFONT font) {
    TEXTMETRICA metrics{};
    if (const WindowDc dc = BorrowDc(window)) {
        const Selected selected(dc.get().dc, font);
        GetTextMetricsA(dc.get().dc, &metrics);
    }
    return metrics;
}

int TextWidth(HWND window, HFONT font, std::string_view text) {
    SIZE size{};
    if (const WindowDc dc = BorrowDc(window)) {
        const Selected selected(dc.get().dc, font);
        GetTextExtentPoint32A(dc.get().dc, text.data(), static_cast<int>(text.size()), &size);
    }
    return size.cx;
}

}  // namespace vexa

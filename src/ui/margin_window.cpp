#include "ui/margin_window.h"

#include "framework/gdi.h"
#include "ui/row_painter.h"

namespace vexa {
namespace {

constexpr WindowClass kMarginClass{.name = "MDImarginCL"};

}  // namespace

Rgb MarginShade(Rgb background) {
    const bool isDark = background.red * 3 + background.green * 6 + background.blue < 10 * 128;
    const auto shade = [isDark](std::uint8_t channel) {
        const int target = isDark ? 255 : 0;
        return static_cast<std::uint8_t>(channel + (target - channel) / 6);
    };
    return {shade(background.red), shade(background.green), shade(background.blue)};
}

bool MDImarginCL::open(HWND parent) {
    return create(kMarginClass, {.style = WS_CHILD | WS_VISIBLE, .place = {0, 0, 0, 0}, .parent = parent});
}

bool MDImarginCL::onSize(UINT /*kind*/) {
    InvalidateRect(window(), nullptr, FALSE);
    return true;
}

bool MDImarginCL::onPaint(HDC dc, const RECT& update) {
    FillColour(dc, update, ColourRef(MarginShade(colours_.colourOf(ColourElement::Background))));
    return true;
}

bool MDImarginCL::onEraseBackground(HDC /*dc*/) {
    return true;
}

}  // namespace vexa

#include "ui/document/display_colours.h"

namespace vexa {
namespace {

int SystemColour(ColourElement element) {
    switch (element) {
        case ColourElement::Background:
            return COLOR_WINDOW;
        case ColourElement::MarkingBackground:
            return COLOR_HIGHLIGHT;
        case ColourElement::MarkingText:
            return COLOR_HIGHLIGHTTEXT;
        default:
            return COLOR_WINDOWTEXT;
    }
}

// The colour a number of sixths on the way from one to another.
COLORREF Blend(COLORREF from, COLORREF to, int sixths) {
    const auto channel = [sixths](BYTE a, BYTE b) { return static_cast<BYTE>(a + (b - a) * sixths / 6); };
    return RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
               channel(GetBValue(from), GetBValue(to)));
}

bool IsDark(COLORREF colour) {
    return GetRValue(colour) * 3 + GetGValue(colour) * 6 + GetBValue(colour) < 10 * 128;
}

}  // namespace

COLORREF ColourRef(Rgb colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

void DisplayColours::refresh() {
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof(contrast);
    const bool known = SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
    isHighContrast_ = known && (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

COLORREF DisplayColours::colourOf(ColourElement element) const {
    return isHighContrast_ ? GetSysColor(SystemColour(element)) : ColourRef(table_.colourOf(element));
}

bool DisplayColours::isDark() const {
    return IsDark(colourOf(ColourElement::Background));
}

COLORREF DisplayColours::marginBackground() const {
    const COLORREF background = colourOf(ColourElement::Background);
    if (isHighContrast_) return background;
    return Blend(background, IsDark(background) ? RGB(255, 255, 255) : RGB(0, 0, 0), 1);
}

// Black or white recedes without depending on what colour the text happens to have.
COLORREF DisplayColours::marginText() const {
    if (isHighContrast_) return colourOf(ColourElement::DefaultText);
    const COLORREF background = marginBackground();
    return Blend(background, IsDark(background) ? RGB(255, 255, 255) : RGB(0, 0, 0), 4);
}

COLORREF DisplayColours::changedMark() const {
    return isHighContrast_ ? GetSysColor(COLOR_HIGHLIGHT) : RGB(255, 144, 0);
}

}  // namespace vexa

#include "document/print/print_style.h"

#include <algorithm>

namespace vexa {

namespace {

// The brightness up to which a colour has a contrast of 4.5 to 1 with white, which small print needs, whatever its hue.
constexpr int kBrightest = 70;  // of 255

int Brightness(Rgb colour) {
    return (299 * colour.red + 587 * colour.green + 114 * colour.blue) / 1000;
}

bool IsGrey(Rgb colour) {
    return colour.red == colour.green && colour.green == colour.blue;
}

Rgb Negative(Rgb colour) {
    const auto inverted = [](int part) { return static_cast<std::uint8_t>(255 - part); };
    return {inverted(colour.red), inverted(colour.green), inverted(colour.blue)};
}

}  // namespace

Rgb ReadableOnPaper(Rgb colour) {
    if (IsGrey(colour) && colour.red > 128) colour = Negative(colour);
    const int brightness = std::max(Brightness(colour), kBrightest);
    const auto darkened = [brightness](int part) { return static_cast<std::uint8_t>(part * kBrightest / brightness); };
    return {darkened(colour.red), darkened(colour.green), darkened(colour.blue)};
}

PrintStyle PrintStyleOf(ColourElement element, const ColourTable& colours, bool withColours) {
    PrintStyle style;
    style.isBold = element == ColourElement::Keywords;
    style.isItalic = element == ColourElement::Comments && !withColours;
    if (withColours && element != ColourElement::DefaultText) style.colour = ReadableOnPaper(colours.colourOf(element));
    return style;
}

}  // namespace vexa

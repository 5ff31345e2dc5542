#include "language/contrast.h"

#include <algorithm>
#include <cmath>

namespace vexa {

namespace {

double LightOf(std::uint8_t channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double LuminanceOf(Rgb colour) {
    return 0.2126 * LightOf(colour.red) + 0.7152 * LightOf(colour.green) + 0.0722 * LightOf(colour.blue);
}

}  // namespace

double ContrastOf(Rgb a, Rgb b) {
    const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace vexa

#include "language/contrast.h"

#include <algorithm>

namespace vexa {

namespace {

// The curve of sRGB within 0.001, as a polynomial: the library's pow() would weigh more than all that uses it.
double LightOf(std::uint8_t channel) {
    const double value = channel / 255.0;
    return value * (value * (value * 0.305306011 + 0.682171111) + 0.012522878);
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

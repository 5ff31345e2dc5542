#include "language/contrast.h"

#include <algorithm>

namespace vexa {

namespace {

// By Newton's method, for 0.05 to 1: the library's pow() would weigh more than all that uses it.
double FifthRoot(double value) {
    constexpr int kSteps = 12;
    double root = 1;
    for (int i = 0; i < kSteps; ++i)
        root = (4 * root + value / (root * root * root * root)) / 5;
    return root;
}

// The curve of sRGB: the power 2.4 is 2 + 2/5.
double LightOf(std::uint8_t channel) {
    const double value = channel / 255.0;
    if (value <= 0.04045) return value / 12.92;
    const double base = (value + 0.055) / 1.055;
    const double root = FifthRoot(base);
    return base * base * root * root;
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

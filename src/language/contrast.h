// How well a colour can be read on another.
#pragma once

#include "language/colour_table.h"

namespace vexa {

// What a text must reach on its background to be read with ease.
inline constexpr double kReadableContrast = 4.5;

// From 1 (the same colour) to 21 (black and white), in either order: the ratio of the relative luminances of sRGB.
double ContrastOf(Rgb a, Rgb b);

}  // namespace vexa

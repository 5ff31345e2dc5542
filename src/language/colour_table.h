// The colours of the display: a fixed palette of sixteen, and which of them each element is painted with.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/units.h"

namespace vexa {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

struct PaletteEntry {
    std::string_view name;
    Rgb colour;
};

inline constexpr PaletteEntry kPalette[] = {
    {"White", {255, 255, 255}},     {"Gray", {192, 192, 192}},    {"Red", {255, 0, 0}},
    {"Yellow", {255, 255, 0}},      {"Green", {0, 255, 0}},       {"Cyan", {0, 255, 255}},
    {"Blue", {0, 0, 255}},          {"Purple", {255, 0, 255}},    {"Black", {0, 0, 0}},
    {"Dark Gray", {128, 128, 128}}, {"Dark Red", {128, 0, 0}},    {"Dark Yellow", {128, 128, 0}},
    {"Dark Green", {0, 128, 0}},    {"Dark Cyan", {0, 128, 128}}, {"Dark Blue", {0, 0, 128}},
    {"Dark Purple", {128, 0, 128}},
};
inline constexpr std::int32_t kPaletteSize = 16;
inline constexpr std::size_t kElementCount = 10;

// A palette index for each element, in the order of ColourElement.
using ElementColours = std::array<std::int32_t, kElementCount>;

// White keywords and yellow text on dark blue: what the editor comes up with.
inline constexpr ElementColours kClassicColours = {14, 1, 3, 0, 13, 8, 7, 4, 5, 0};

// One for the program. Indices are kept as they are; one outside the palette is painted in the element's classic
// colour.
class ColourTable {
  public:
    Rgb colourOf(ColourElement element) const {
        const auto position = static_cast<std::size_t>(element);
        const std::int32_t index = colours_[position];
        const bool isInPalette = index >= 0 && index < kPaletteSize;
        return kPalette[isInPalette ? index : kClassicColours[position]].colour;
    }
    void setElementColour(ColourElement element, std::int32_t index) {
        colours_[static_cast<std::size_t>(element)] = index;
    }

  private:
    ElementColours colours_ = kClassicColours;
};

}  // namespace vexa

// The colours of the display: a fixed palette of sixteen, and which of them each element is painted with.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/config_store.h"
#include "base/units.h"

namespace vexa {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

// In the order of their names in the string table.
inline constexpr Rgb kPalette[] = {
    {255, 255, 255}, {192, 192, 192}, {255, 0, 0}, {255, 255, 0},   {0, 255, 0}, {0, 255, 255},
    {0, 0, 255},     {255, 0, 255},   {0, 0, 0},   {128, 128, 128}, {128, 0, 0}, {128, 128, 0},
    {0, 128, 0},     {0, 128, 128},   {0, 0, 128}, {128, 0, 128},
};
inline constexpr std::int32_t kPaletteSize = 16;
inline constexpr std::size_t kElementCount = 10;

// A palette index for each element, in the order of ColourElement.
using ElementColours = std::array<std::int32_t, kElementCount>;

// The colour schemes to choose from, in the order of their names in the string table. The last has no colours of its
// own: it stands for those in effect.
enum class ColourPreset : std::uint8_t { BlackVexa, ClassicVexa, GrayVexa, MonochromeVexa, StandardVexa, UserDefined };
inline constexpr std::size_t kPresetCount = 6;

// The colours of a preset; none of its own for UserDefined, which gives the current ones.
const ElementColours& PresetColours(ColourPreset preset, const ElementColours& current);

// Names as the user is shown them; empty for a number out of range.
std::string_view PaletteName(std::int32_t index);
std::string_view ElementName(ColourElement element);
std::string_view PresetName(ColourPreset preset);

// White keywords and yellow text on dark blue: what the editor comes up with.
inline constexpr ElementColours kClassicColours = {14, 1, 3, 0, 13, 8, 7, 4, 5, 0};

// One for the program, kept in the section "Color Table" of the settings. Indices are kept as they are; of one outside
// the palette the low four bits choose the colour.
class ColourTable {
  public:
    void load(const ConfigStore& store);
    void save(ConfigStore& store) const;

    Rgb colourOf(ColourElement element) const {
        return kPalette[static_cast<std::uint32_t>(indexOf(element)) % kPaletteSize];
    }
    std::int32_t indexOf(ColourElement element) const { return colours_[static_cast<std::size_t>(element)]; }
    void setElementColour(ColourElement element, std::int32_t index) {
        colours_[static_cast<std::size_t>(element)] = index;
    }
    const ElementColours& elementColours() const { return colours_; }
    void setElementColours(const ElementColours& colours) { colours_ = colours; }

    bool isHighlightingOn() const { return highlighting_; }
    void setHighlighting(bool on) { highlighting_ = on; }

    bool operator==(const ColourTable&) const = default;

  private:
    ElementColours colours_ = kClassicColours;
    bool highlighting_ = true;
};

}  // namespace vexa

#include "ui/document/font_details.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace vexa {
namespace {

constexpr const char* kSection = "Font Details";
constexpr std::int32_t kSmallest = 4;  // in pixels, either way of giving the height
constexpr std::int32_t kLargest = 200;
constexpr std::int32_t kHeaviest = 1000;
constexpr std::int32_t kSmallestZoom = 6;
constexpr std::int32_t kLargestZoom = 72;

bool IsReadable(std::int32_t height) {
    return (height >= kSmallest && height <= kLargest) || (height <= -kSmallest && height >= -kLargest);
}

}  // namespace

void FontDetails::Load(const ConfigStore& store) {
    const FontDetails defaults;
    const auto number = [&store](const char* key, std::int32_t fallback) {
        return store.ReadInt(kSection, key, fallback);
    };
    Height = number("Height", defaults.Height);
    if (!IsReadable(Height)) Height = defaults.Height;
    Width = number("Width", defaults.Width);
    if (Width < 0 || Width > kLargest) Width = defaults.Width;
    HeightBeforeZoom = number("HeightBeforeZoom", 0);
    if (!IsReadable(HeightBeforeZoom)) HeightBeforeZoom = 0;
    WidthBeforeZoom = number("WidthBeforeZoom", 0);
    if (WidthBeforeZoom < 0 || WidthBeforeZoom > kLargest) WidthBeforeZoom = 0;
    Weight = number("Weight", defaults.Weight);
    if (Weight < 0 || Weight > kHeaviest) Weight = defaults.Weight;
    Italic = number("Italic", defaults.Italic) != 0;
    Underline = number("Underline", defaults.Underline) != 0;
    StrikeOut = number("StrikeOut", defaults.StrikeOut) != 0;
    Family = number("Family", defaults.Family);
    Face = store.ReadString(kSection, "Face", defaults.Face, kFaceLimit + 1);
}

void FontDetails::Save(ConfigStore& store) const {
    const auto write = [&store](const char* key, std::int32_t value) { store.WriteInt(kSection, key, value); };
    write("Height", Height);
    write("Width", Width);
    write("HeightBeforeZoom", HeightBeforeZoom);
    write("WidthBeforeZoom", WidthBeforeZoom);
    write("Weight", Weight);
    write("Italic", Italic);
    write("Underline", Underline);
    write("StrikeOut", StrikeOut);
    write("Family", Family);
    store.WriteString(kSection, "Face", Face);
}

void FontDetails::zoom(std::int32_t steps) {
    if (HeightBeforeZoom == 0) {
        HeightBeforeZoom = Height;
        WidthBeforeZoom = Width;
    }
    const std::int32_t size = std::clamp(std::abs(Height) + steps, kSmallestZoom, kLargestZoom);
    Height = Height < 0 ? -size : size;
    Width = 0;  // as wide as the face wants to be at its new height
}

void FontDetails::resetZoom() {
    if (HeightBeforeZoom == 0) return;
    Height = std::exchange(HeightBeforeZoom, 0);
    Width = std::exchange(WidthBeforeZoom, 0);
}

}  // namespace vexa

#include "language/colour_table.h"

#include "base/strings.h"

namespace vexa {

namespace {

static_assert(std::size(kPalette) == kPaletteSize);

constexpr const char* kSection = "Color Table";
constexpr const char* kHighlightingKey = "Highlighting";

// In the order in which they are written.
struct SettingsKey {
    const char* key;
    ColourElement element;
};
constexpr SettingsKey kKeys[kElementCount] = {
    {"Symbol", ColourElement::Symbols},        {"String", ColourElement::Strings},
    {"Number", ColourElement::Numbers},        {"Comment", ColourElement::Comments},
    {"Keyword", ColourElement::Keywords},      {"Default", ColourElement::DefaultText},
    {"Preproc", ColourElement::Preprocessors}, {"Markblock", ColourElement::MarkingBackground},
    {"Marktext", ColourElement::MarkingText},  {"Background", ColourElement::Background},
};

constexpr ElementColours kPresets[kPresetCount - 1] = {
    {8, 0, 3, 7, 1, 14, 5, 1, 4, 5},     kClassicColours,
    {1, 12, 8, 10, 14, 0, 7, 15, 6, 14}, {0, 8, 8, 8, 8, 0, 8, 8, 8, 8},
    {0, 12, 8, 2, 8, 0, 7, 6, 13, 9},
};

// The names of each kind have numbers in a row.
std::string_view Name(TextId first, int position) {
    return LoadText(static_cast<TextId>(static_cast<int>(first) + position));
}

}  // namespace

const ElementColours& PresetColours(ColourPreset preset, const ElementColours& current) {
    return preset < ColourPreset::UserDefined ? kPresets[static_cast<std::size_t>(preset)] : current;
}

std::string_view PaletteName(std::int32_t index) {
    return index >= 0 && index < kPaletteSize ? Name(TextId::White, index) : std::string_view();
}

std::string_view ElementName(ColourElement element) {
    return Name(TextId::Background, static_cast<int>(element));
}

std::string_view PresetName(ColourPreset preset) {
    return Name(TextId::BlackVexa, static_cast<int>(preset));
}

void ColourTable::load(const ConfigStore& store) {
    highlighting_ = store.ReadInt(kSection, kHighlightingKey, 1) != 0;
    for (const SettingsKey& row : kKeys) {
        const std::int32_t classic = kClassicColours[static_cast<std::size_t>(row.element)];
        setElementColour(row.element, store.ReadInt(kSection, row.key, classic));
    }
}

void ColourTable::save(ConfigStore& store) const {
    const ConfigStore::Batch batch(store);
    store.WriteInt(kSection, kHighlightingKey, highlighting_ ? 1 : 0);
    for (const SettingsKey& row : kKeys)
        store.WriteInt(kSection, row.key, indexOf(row.element));
}

}  // namespace vexa

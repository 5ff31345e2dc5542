#include "language/colour_setup_model.h"

namespace vexa {

// Colours that were in effect before and are a preset's too are shown as that preset.
ColourPreset ColourSetupModel::preset() const {
    const ElementColours& colours = working_.elementColours();
    for (std::size_t i = 0; i + 1 < kPresetCount; ++i) {
        const auto preset = static_cast<ColourPreset>(i);
        if (PresetColours(preset, colours) == colours) return preset;
    }
    return ColourPreset::UserDefined;
}

void ColourSetupModel::choosePreset(ColourPreset preset) {
    working_.setElementColours(PresetColours(preset, current_.elementColours()));
}

}  // namespace vexa

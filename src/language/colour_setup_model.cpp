#include "language/colour_setup_model.h"

namespace vexa {

ColourPreset ColourSetupModel::presetOfWorkingSet() const {
    const ElementColours& colours = working_.elementColours();
    for (std::size_t i = 0; i + 1 < kPresetCount; ++i) {
        const auto preset = static_cast<ColourPreset>(i);
        if (PresetColours(preset, colours) == colours) return preset;
    }
    return ColourPreset::UserDefined;
}

void ColourSetupModel::choosePreset(ColourPreset preset) {
    working_.setElementColours(PresetColours(preset, current_.elementColours()));
    preset_ = preset;
}

void ColourSetupModel::chooseColour(std::int32_t index) {
    working_.setElementColour(element_, index);
    preset_ = presetOfWorkingSet();
}

}  // namespace vexa

#include "language/colour_setup_model.h"

#include "base/strings.h"
#include "language/contrast.h"

namespace vexa {

namespace {

struct Pair {
    ColourElement text;
    ColourElement background;
};

Pair PairOf(ColourElement element) {
    const bool isOfMarking = element == ColourElement::MarkingText || element == ColourElement::MarkingBackground;
    if (isOfMarking) return {ColourElement::MarkingText, ColourElement::MarkingBackground};
    const bool isBackground = element == ColourElement::Background;
    return {isBackground ? ColourElement::DefaultText : element, ColourElement::Background};
}

}  // namespace

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

// Rounded down, so that a contrast that is too low never reads as one that is enough.
std::string ColourSetupModel::contrastText() const {
    const Pair pair = PairOf(element_);
    const double contrast = ContrastOf(working_.colourOf(pair.text), working_.colourOf(pair.background));
    const int tenths = static_cast<int>(contrast * 10);
    return FillText(LoadText(contrast < kReadableContrast ? TextId::PoorContrast : TextId::Contrast),
                    {std::to_string(tenths / 10) + "." + std::to_string(tenths % 10)});
}

}  // namespace vexa

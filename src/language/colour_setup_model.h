// The fields of the "Color Setup" dialog and what its controls do.
#pragma once

#include <string>

#include "language/colour_table.h"

namespace vexa {

// Works on a copy of the colours; only update() takes it into effect.
class ColourSetupModel {
  public:
    explicit ColourSetupModel(const ColourTable& current)
        : current_(current), working_(current), preset_(presetOfWorkingSet()) {}

    // The preset that the list shows: the one that was chosen, or whose colours the working set has come to have; else
    // "User Defined".
    ColourPreset preset() const { return preset_; }
    void choosePreset(ColourPreset preset);
    ColourElement element() const { return element_; }
    void chooseElement(ColourElement element) { element_ = element; }
    // The palette entry that the colour list selects for the chosen element.
    std::int32_t colour() const { return working_.indexOf(element_) & (kPaletteSize - 1); }
    void chooseColour(std::int32_t index);
    // Says how well the chosen element can be read; of a background, what stands on it.
    std::string contrastText() const;
    bool isHighlightingOn() const { return working_.isHighlightingOn(); }
    void setHighlighting(bool on) { working_.setHighlighting(on); }

    // What the sample is painted with.
    const ColourTable& working() const { return working_; }
    void update(ColourTable& table) const { table = working_; }

  private:
    ColourPreset presetOfWorkingSet() const;

    const ColourTable current_;
    ColourTable working_;
    ColourPreset preset_;
    ColourElement element_ = ColourElement::Background;
};

}  // namespace vexa

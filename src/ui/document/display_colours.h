// The colours that windows are painted with: those of the colour table, or the system's own where the user needs them.
#pragma once

#include <windows.h>

#include "language/colour_table.h"

namespace vexa {

COLORREF ColourRef(Rgb colour);

// With the system's high contrast on, all text has its window colours and what is marked those of its selections.
class DisplayColours {
  public:
    explicit DisplayColours(const ColourTable& table) : table_(table) { refresh(); }

    // Asks the system whether high contrast is on.
    void refresh();
    COLORREF colourOf(ColourElement element) const;
    // Behind the margin's text: can be told from the background and yet recedes behind it.
    COLORREF marginBackground() const;
    COLORREF marginText() const;
    // Beside lines that have been changed; seen on dark and on light ground.
    COLORREF changedMark() const;
    bool isDark() const;
    bool isHighlightingOn() const { return table_.isHighlightingOn() && !isHighContrast_; }

  private:
    const ColourTable& table_;
    bool isHighContrast_ = false;
};

}  // namespace vexa

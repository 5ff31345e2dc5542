// How the elements of a text look on white paper.
#pragma once

#include "language/colour_table.h"

namespace vexa {

struct PrintStyle {
    Rgb colour;
    bool isBold = false;
    bool isItalic = false;

    bool operator==(const PrintStyle&) const = default;
};

// The colour of the screen as it can be read on white: the hue stays and is darkened as far as needed. Greys, which
// have none, become dark greys, the lightest black, as light text stands out on a dark screen.
Rgb ReadableOnPaper(Rgb colour);

// Plain text is black whatever it is on the screen, and keywords are bold, so that they are told apart on any printer.
// Without colours all is black, and comments are italic.
PrintStyle PrintStyleOf(ColourElement element, const ColourTable& colours, bool withColours);

}  // namespace vexa

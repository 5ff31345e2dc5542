// A window inside the frame that shows text in the font and colours that the user has chosen.
#pragma once

#include "framework/mdi_child.h"

namespace vexa {

class DocumentWindow;
class ListWindow;

// Every window inside the frame is one.
class TextWindow : public MDIchildCL {
  public:
    using MDIchildCL::MDIchildCL;

    // The window as what it is; none when it is something else. Type information, which could tell as well, would be
    // 2 in 100 of the program.
    virtual DocumentWindow* asDocument() { return nullptr; }
    virtual ListWindow* asList() { return nullptr; }
    // Takes over another font, or the resolution of the monitor that the frame is on.
    virtual void refreshFont() = 0;
    // Takes over colours that have been changed.
    virtual void refreshColours() = 0;
};

}  // namespace vexa

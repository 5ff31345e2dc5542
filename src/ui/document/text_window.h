// A window inside the frame that shows text in the font and colours that the user has chosen.
#pragma once

namespace vexa {

class TextWindow {
  public:
    virtual ~TextWindow() = default;
    // Takes over another font, or the resolution of the monitor that the frame is on.
    virtual void refreshFont() = 0;
    // Takes over colours that have been changed.
    virtual void refreshColours() = 0;
};

}  // namespace vexa

// The strip at the left of a document's text.
#pragma once

#include "framework/window.h"
#include "language/colour_table.h"

namespace vexa {

// A colour that can be told from the background and yet recedes behind it: a little lighter than a dark background, a
// little darker than a light one.
Rgb MarginShade(Rgb background);

class MDImarginCL : public WindowCL {
  public:
    explicit MDImarginCL(const ColourTable& colours) : colours_(colours) {}

    bool open(HWND parent);

  protected:
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;

  private:
    const ColourTable& colours_;
};

}  // namespace vexa

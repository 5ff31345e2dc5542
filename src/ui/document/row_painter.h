// Draws the rows of an edit view in their colours.
#pragma once

#include <vector>

#include "document/view/row_renderer.h"
#include "framework/gdi.h"
#include "ui/document/display_colours.h"
#include "ui/document/pane_font.h"

namespace vexa {

class RowPainter {
  public:
    explicit RowPainter(const DisplayColours& colours) : colours_(colours) {}

    void setFont(PaneFont font) { font_ = std::move(font); }
    const PaneFont& font() const { return font_; }
    int cellWidth() const { return font_.cellWidth; }
    int cellHeight() const { return font_.cellHeight; }
    // Draws a row at a height of the window, which is that many pixels wide; what lies right of the last cell gets the
    // background of that cell.
    void paint(HDC window, int top, int width, const ViewRow& row);

  private:
    void drawRun(HDC dc, const CellRun& run, int right, const std::string& cells);

    const DisplayColours& colours_;
    PaneFont font_;
    OffScreenBitmap picture_;
    std::vector<INT> widths_;  // one cell each: keeps every character in its cell whatever the font says
};

}  // namespace vexa

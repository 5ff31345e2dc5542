// The strip at the left of a document's text: line numbers, bookmarks and marks beside changed lines.
#pragma once

#include "document/view/edit_view.h"
#include "document/view/margin_row.h"
#include "framework/gdi.h"
#include "framework/window.h"
#include "ui/document/row_painter.h"
#include "ui/document/shown_rows.h"

namespace vexa {

// What a margin asks of the window around it.
class MarginHost {
  public:
    virtual ~MarginHost() = default;
    // The user has pressed the mouse beside a line, at a point of the screen.
    virtual void marginPressed(POINT screenPosition, bool shift) = 0;
    virtual void marginWheel(const WheelMessage& turn) = 0;
};

// Draws with the font of the pane beside it, row by row at the same heights.
class MDImarginCL : public WindowCL {
  public:
    MDImarginCL(const EditView& view, const RowPainter& pane, const DisplayColours& colours, MarginHost& host)
        : view_(view), pane_(pane), colours_(colours), host_(host) {}

    bool open(HWND parent);
    // Shows the view as it now is: draws the rows that look different.
    void refresh();
    // Draws everything anew, in other colours or another font.
    void redraw();
    // In pixels, for the present number of lines.
    int width() const;

  protected:
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onWheel(const WheelMessage& turn) override;

  private:
    int markWidth() const { return pane_.cellWidth() / 3 + 1; }
    void fillBackground(HDC dc, const RECT& area) const;
    void drawRow(HDC window, int top, int width, const MarginRow& row);
    void drawBookmark(HDC dc, char digit);

    const EditView& view_;
    const RowPainter& pane_;
    const DisplayColours& colours_;
    MarginHost& host_;
    ShownRows<MarginRow> rows_;
    LineIndex shownTop_;  // where the rows begin
    OffScreenBitmap picture_;
};

}  // namespace vexa

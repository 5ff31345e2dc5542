// A window of rows in the editor's own font and colours, with two scroll bars: the text of a document, or a list.
#pragma once

#include <cstdint>
#include <utility>

#include "document/view/edit_view.h"
#include "framework/window.h"
#include "framework/window_scroll_bars.h"
#include "ui/document/row_painter.h"
#include "ui/document/shown_rows.h"

namespace vexa {

// What a pane tells the window around it.
class RowPaneHost {
  public:
    virtual ~RowPaneHost() = default;
    // The user is about to do something in the pane.
    virtual void userActs() = 0;
    // The user wants larger characters, or smaller ones below 0.
    virtual void zoom(std::int32_t steps) = 0;
    // The user wants the pop-up menu, at a position of the screen.
    virtual void showContextMenu(POINT screenPosition) = 0;
};

class RowPane : public WindowCL {
  public:
    // Shows what is to be seen now: draws the rows that look different, and moves the scroll bars.
    virtual void refresh() = 0;
    // Takes over the font and the resolution in force.
    void refreshFont();
    // Takes over the colours in force.
    void refreshColours();
    bool onWheel(const WheelMessage& turn) override;

  protected:
    RowPane(const DisplayColours& colours, const FontDetails& font, RowPaneHost& host)
        : colours_(colours), painter_(colours), fontDetails_(font), rowPaneHost_(host) {}

    bool open(const WindowClass& windowClass, HWND parent);
    // The window has room for another number of rows or columns.
    virtual void fit() { refresh(); }
    virtual ScrollState scrollState(int bar) const = 0;
    virtual void moveTo(int bar, std::int32_t position) = 0;

    // As many as are seen as a whole, and at least one.
    std::int32_t rowsInWindow() const;
    std::int32_t columnsInWindow() const;
    // Draws what differs of render(0) and the rows below it; `moved` as in ShownRows.
    template <class Render>
    void showRows(std::int32_t moved, Render render) {
        const int height = painter_.cellHeight();
        const auto count = static_cast<std::size_t>((clientArea().bottom + height - 1) / height);
        rows_.show(window(), count, height, moved, render);
    }
    void showScrollBars();

    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    bool onScroll(int bar, UINT request) override;

    const DisplayColours& colours_;
    RowPainter painter_;

  private:
    void scrollTo(int bar, std::int32_t position);

    const FontDetails& fontDetails_;
    RowPaneHost& rowPaneHost_;
    ShownRows<ViewRow> rows_;
    WindowScrollBars scrollBars_;
    WheelSteps zoom_;
};

}  // namespace vexa

// The window that shows the rows of a list, in the editor's own font and colours.
#pragma once

#include <cstdint>
#include <optional>

#include "base/list_rows.h"
#include "framework/window.h"
#include "ui/document/row_painter.h"
#include "ui/document/shown_rows.h"
#include "ui/document/window_scroll_bars.h"
#include "ui/lists/list_row.h"

namespace vexa {

// What a list's pane tells the window around it.
class ListPaneHost {
  public:
    virtual ~ListPaneHost() = default;
    // The user is about to do something in the list.
    virtual void userActs() = 0;
    // The user wants larger characters, or smaller ones below 0.
    virtual void zoom(std::int32_t steps) = 0;
    // The user wants the pop-up menu, at a position of the screen.
    virtual void showContextMenu(POINT screenPosition) = 0;
};

class ListPane : public WindowCL {
  public:
    ListPane(ListRows& rows, const DisplayColours& colours, const FontDetails& font, ListPaneHost& host)
        : list_(rows), colours_(colours), fontDetails_(font), host_(host), painter_(colours) {}

    bool open(HWND parent);
    // Shows the rows as they now are; where there are fewer, the window goes back to the last.
    void refresh();
    // Shows the selection, and scrolls to it.
    void showSelection();
    RowSpan selection() const { return selection_.span(list_.selectedRow()); }
    // Where the selected row is on the screen.
    RECT screenPlaceOfSelection() const;
    // Takes over the font and the resolution in force.
    void refreshFont();
    // Takes over the colours in force.
    void refreshColours();

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    bool onKey(const KeyMessage& key) override;
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT place) override;
    bool onMouseRelease() override;
    bool onWheel(const WheelMessage& turn) override;
    bool onScroll(int bar, UINT request) override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;

  private:
    bool needsMarks() const;
    std::int32_t rowsInWindow() const;
    std::int32_t columnsInWindow() const;
    std::optional<std::size_t> rowAt(POINT position) const;
    ViewRow render(std::size_t row);
    void drawRows();
    void scrollTo(int bar, std::int32_t position);
    void selectAndShow(std::size_t row, bool extends);
    ScrollState scrollState(int bar) const;

    ListRows& list_;
    const DisplayColours& colours_;
    const FontDetails& fontDetails_;
    ListPaneHost& host_;
    RowPainter painter_;
    ShownRows<ViewRow> rows_;
    WindowScrollBars scrollBars_;
    WheelSteps zoom_;
    RowSelection selection_;
    std::int32_t top_ = 0;       // the first row that is seen
    std::int32_t left_ = 0;      // the first column
    std::int32_t shownTop_ = 0;  // where the rows begin that are shown
    std::int32_t widest_ = 0;    // columns of the widest row that was shown
};

}  // namespace vexa

// The window that shows an edit view: hands it keys and mouse, and draws the rows that come out of it.
#pragma once

#include <optional>

#include "document/view/edit_view.h"
#include "framework/window.h"
#include "ui/document/click_rules.h"
#include "ui/document/key_translation.h"
#include "ui/document/row_painter.h"
#include "ui/document/shown_rows.h"
#include "ui/document/window_scroll_bars.h"

namespace vexa {

// What a pane tells the window around it.
class PaneHost {
  public:
    virtual ~PaneHost() = default;
    // The user is about to do something in the pane.
    virtual void userActs() = 0;
    // The user has pressed a mouse button in the text or beside it.
    virtual void mousePressed() = 0;
    // The view has used a key.
    virtual void keyUsed(const KeyEvent& event) = 0;
    // The caret, the text or the mode may have changed.
    virtual void viewChanged() = 0;
    // What a key or the mouse has started has broken off.
    virtual void commandFailed() = 0;
    // The user wants larger characters, or smaller ones below 0.
    virtual void zoom(std::int32_t steps) = 0;
    // The user wants the pop-up menu, at a point of the screen.
    virtual void showContextMenu(POINT screenPlace) = 0;
};

class PaneWindowCL : public WindowCL {
  public:
    PaneWindowCL(EditView& view, const DisplayColours& colours, const FontDetails& font, PaneHost& host)
        : view_(view), colours_(colours), fontDetails_(font), host_(host), painter_(colours) {}

    bool open(HWND parent);
    // Shows the view as it now is: draws the rows that look different, moves the caret and the scroll bars.
    void refresh();
    const RowPainter& painter() const { return painter_; }
    // Where columns of a line are on the screen, as far as they are in sight.
    RECT screenPlaceOf(LineIndex line, DisplayColumn from, DisplayColumn to) const;
    // Takes over the font and the resolution in force.
    void refreshFont();
    // Takes over the colours in force.
    void refreshColours();
    // Follows the mouse, whose button was pressed at a point of the screen beside the pane, and marks lines.
    void startMarkingLines(POINT screenPlace, bool extend);
    bool onWheel(const WheelMessage& turn) override;

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    bool onFocusGained() override;
    void onFailed() override { host_.commandFailed(); }
    bool onFocusLost() override;
    bool onKey(const KeyMessage& key) override;
    bool onCharacter(unsigned char character, UINT repeat) override;
    bool onSystemKeyUp(UINT key) override;
    bool onSystemCharacter(unsigned char character) override;
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT place) override;
    bool onMouseRelease() override;
    bool onCaptureLost() override;
    bool onTimer(UINT_PTR timer) override;
    bool onScroll(int bar, UINT request) override;
    bool onContextMenu(std::optional<POINT> screenPlace) override;

  private:
    void fitView();
    void refreshRows();
    void refreshCaret();
    void startDrag(POINT place, bool extend, MousePress how);
    void endDrag();
    MousePress kindOf(const MouseButtonMessage& press);
    Cell cellAt(POINT place) const;
    POINT caretPlace() const;
    ScrollState scrollState(int bar) const;
    void scrollTo(int bar, std::int32_t position);

    EditView& view_;
    const DisplayColours& colours_;
    const FontDetails& fontDetails_;
    PaneHost& host_;
    RowPainter painter_;
    KeyTranslator keys_;
    TripleClick tripleClick_;
    WheelSteps zoom_;
    ShownRows<ViewRow> rows_;
    LineIndex shownTop_;  // where the rows begin
    DisplayColumn shownLeft_;
    WindowScrollBars scrollBars_;
    SIZE caretSize_ = {};  // none while the window has not the focus
    POINT dragPlace_ = {};
    bool isDragging_ = false;
    bool dropsAltRelease_ = false;
};

}  // namespace vexa

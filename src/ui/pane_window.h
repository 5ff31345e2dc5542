// The window that shows an edit view: hands it keys and mouse, and draws the rows that come out of it.
#pragma once

#include <vector>

#include "document/edit_view.h"
#include "framework/window.h"
#include "ui/key_translation.h"
#include "ui/row_painter.h"
#include "ui/scroll_rules.h"

namespace vexa {

// What a pane tells the window around it.
class PaneHost {
  public:
    virtual ~PaneHost() = default;
    // The user is about to do something in the pane.
    virtual void userActs() = 0;
    // The view has used a key.
    virtual void keyUsed(const KeyEvent& event) = 0;
    // The caret, the text or the mode may have changed.
    virtual void viewChanged() = 0;
    // The user wants the pop-up menu, at a place of the screen.
    virtual void showContextMenu(POINT screenPlace) = 0;
};

class PaneWindowCL : public WindowCL {
  public:
    PaneWindowCL(EditView& view, const ColourTable& colours, const FontDetails& font, PaneHost& host)
        : view_(view), fontDetails_(font), host_(host), painter_(colours) {}

    bool open(HWND parent);
    // Shows the view as it now is: draws the rows that look different, moves the caret and the scroll bars.
    void refresh();
    int cellWidth() const { return painter_.cellWidth(); }
    // Takes over the resolution in force.
    void refreshFont();

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    bool onFocusGained() override;
    bool onFocusLost() override;
    bool onKey(const KeyMessage& key) override;
    bool onCharacter(unsigned char character, UINT repeat) override;
    bool onSystemCharacter(unsigned char character) override;
    bool onMousePress(POINT place, bool shift) override;
    bool onMouseMove(POINT place) override;
    bool onMouseRelease() override;
    bool onCaptureLost() override;
    bool onTimer(UINT_PTR timer) override;
    bool onWheel(WheelAxis axis, int delta) override;
    bool onScroll(int bar, UINT request) override;
    bool onContextMenu(std::optional<POINT> screenPlace) override;

  private:
    void fitView();
    void refreshRows();
    void refreshCaret();
    void refreshScrollBar(int bar);
    void endDrag();
    Cell cellAt(POINT place) const;
    POINT caretPlace() const;
    ScrollState scrollState(int bar) const;
    void scrollTo(int bar, std::int32_t position);

    EditView& view_;
    const FontDetails& fontDetails_;
    PaneHost& host_;
    RowPainter painter_;
    KeyTranslator keys_;
    WheelSteps wheel_[2];         // by axis
    std::vector<ViewRow> rows_;   // as they were last drawn or are about to be
    ScrollState shownScroll_[2];  // by bar
    SIZE caretSize_ = {};         // none while the window has not the focus
    POINT dragPlace_ = {};
    bool isDragging_ = false;
};

}  // namespace vexa

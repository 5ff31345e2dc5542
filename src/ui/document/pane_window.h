// The window that shows an edit view: hands it keys and mouse, and draws the rows that come out of it.
#pragma once

#include <optional>

#include "document/view/edit_view.h"
#include "ui/document/click_rules.h"
#include "ui/document/key_translation.h"
#include "ui/document/row_pane.h"

namespace vexa {

class PaneHost : public RowPaneHost {
  public:
    // The user has pressed a mouse button in the text or beside it.
    virtual void mousePressed() = 0;
    // The view has used a key.
    virtual void keyUsed(const KeyEvent& event) = 0;
    // The caret, the text or the mode may have changed.
    virtual void viewChanged() = 0;
    // What a key or the mouse has started has broken off.
    virtual void commandFailed() = 0;
};

class PaneWindowCL : public RowPane {
  public:
    PaneWindowCL(EditView& view, const DisplayColours& colours, const FontDetails& font, PaneHost& host)
        : RowPane(colours, font, host), view_(view), host_(host) {}

    bool open(HWND parent);
    // Moves the caret, too.
    void refresh() override;
    const RowPainter& painter() const { return painter_; }
    // Where columns of a line are on the screen, as far as they are in sight.
    RECT screenAreaOf(LineIndex line, DisplayColumn from, DisplayColumn to) const;
    // Takes over the colours in force, and whether there are any but those of plain text.
    void refreshColours();
    // Follows the mouse, whose button was pressed at a point of the screen beside the pane, and marks lines.
    void startMarkingLines(POINT screenPosition, bool extend);

  protected:
    bool onFocusGained() override;
    void onFailed() override { host_.commandFailed(); }
    bool onFocusLost() override;
    bool onKey(const KeyMessage& key) override;
    bool onCharacter(unsigned char character, UINT repeat) override;
    bool onSystemKeyUp(UINT key) override;
    bool onSystemCharacter(unsigned char character) override;
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT position) override;
    bool onMouseRelease(POINT position) override;
    bool onCaptureLost() override;
    bool onTimer(UINT_PTR timer) override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;

  private:
    void fit() override;
    void refreshRows();
    void refreshCaret();
    void startDrag(POINT position, bool extend, MousePress how);
    void endDrag();
    MousePress kindOf(const MouseButtonMessage& press);
    Cell cellAt(POINT position) const;
    POINT caretPosition() const;
    ScrollState scrollState(int bar) const override;
    void moveTo(int bar, std::int32_t position) override;

    EditView& view_;
    PaneHost& host_;
    KeyTranslator keys_;
    TripleClick tripleClick_;
    LineIndex shownTop_;  // where the rows begin
    DisplayColumn shownLeft_;
    SIZE caretSize_ = {};  // none while the window has not the focus
    POINT dragPosition_ = {};
    bool isDragging_ = false;
    bool dropsAltRelease_ = false;
};

}  // namespace vexa

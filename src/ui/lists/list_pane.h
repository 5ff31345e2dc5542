// The window that shows the rows of a list, in the editor's own font and colours.
#pragma once

#include <cstdint>
#include <optional>

#include "base/list_rows.h"
#include "ui/document/row_pane.h"
#include "ui/lists/list_row.h"

namespace vexa {

class ListPane : public RowPane {
  public:
    ListPane(ListRows& rows, const DisplayColours& colours, const FontDetails& font, RowPaneHost& host)
        : RowPane(colours, font, host), list_(rows), host_(host) {}

    bool open(HWND parent);
    // Where there are fewer rows than before, the window goes back to the last.
    void refresh() override;
    // Shows the selection, and scrolls to it.
    void showSelection();
    RowSpan selection() const { return selection_.span(list_.selectedRow()); }
    // Where the selected row is on the screen.
    RECT screenAreaOfSelection() const;

    bool onKey(const KeyMessage& key) override;

  protected:
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT position) override;
    bool onMouseRelease(POINT position) override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;

  private:
    bool needsMarks() const;
    std::optional<std::size_t> rowAt(POINT position) const;
    ViewRow render(std::size_t row);
    void drawRows();
    void moveTo(int bar, std::int32_t position) override;
    void selectAndShow(std::size_t row, bool extends);
    ScrollState scrollState(int bar) const override;

    ListRows& list_;
    RowPaneHost& host_;
    RowSelection selection_;
    std::int32_t top_ = 0;       // the first row that is seen
    std::int32_t left_ = 0;      // the first column
    std::int32_t shownTop_ = 0;  // where the rows begin that are shown
    std::int32_t widest_ = 0;    // columns of the widest row that was shown
};

}  // namespace vexa

#include "ui/document/row_pane.h"

#include <algorithm>

namespace vexa {
namespace {

std::int32_t CellsIn(LONG pixels, int cell) {
    return std::max<std::int32_t>(pixels / cell, 1);
}

}  // namespace

bool RowPane::open(const WindowClass& windowClass, HWND parent) {
    return create(windowClass,
                  {.style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, .area = {0, 0, 0, 0}, .parent = parent});
}

bool RowPane::onCreate() {
    painter_.setFont(MakePaneFont(fontDetails_, window()));
    return true;
}

void RowPane::refreshFont() {
    painter_.setFont(MakePaneFont(fontDetails_, window()));
    rows_.clear();
    fit();
}

void RowPane::refreshColours() {
    refresh();
    InvalidateRect(window(), nullptr, FALSE);
}

bool RowPane::onSize(UINT /*kind*/) {
    fit();
    // What the system has moved along with the window need not be what belongs there now.
    InvalidateRect(window(), nullptr, FALSE);
    return true;
}

std::int32_t RowPane::rowsInWindow() const {
    return CellsIn(clientArea().bottom, painter_.cellHeight());
}

std::int32_t RowPane::columnsInWindow() const {
    return CellsIn(clientArea().right, painter_.cellWidth());
}

bool RowPane::onEraseBackground(HDC /*dc*/) {
    return true;
}

bool RowPane::onPaint(HDC dc, const RECT& update) {
    const LONG right = clientArea().right;
    rows_.paint(update, painter_.cellHeight(),
                [&](int top, const ViewRow& row) { painter_.paint(dc, top, right, row); });
    return true;
}

void RowPane::showScrollBars() {
    for (const int bar : {SB_VERT, SB_HORZ})
        scrollBars_.show(window(), bar, scrollState(bar));
}

void RowPane::scrollTo(int bar, std::int32_t position) {
    moveTo(bar, position);
    refresh();
    UpdateWindow(window());
}

bool RowPane::onScroll(int bar, UINT request) {
    rowPaneHost_.userActs();
    scrollTo(bar, WindowScrollBars::target(window(), bar, request, scrollState(bar)));
    return true;
}

bool RowPane::onWheel(const WheelMessage& turn) {
    if (turn.control) {
        const std::int32_t steps = zoom_.add(-turn.delta, 1);
        if (steps != 0) rowPaneHost_.zoom(steps);
        return true;
    }
    const int bar = WindowScrollBars::barOf(turn);
    const ScrollState state = scrollState(bar);
    const std::int32_t target = scrollBars_.target(turn, state);
    if (target != state.position) scrollTo(bar, target);
    return true;
}

}  // namespace vexa

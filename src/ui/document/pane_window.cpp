#include "ui/document/pane_window.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "framework/dpi.h"

namespace vexa {
namespace {

const WindowClass kPaneClass{.name = "PaneWindowCL", .cursor = IDC_IBEAM};
constexpr POINT kOutOfSight = {-1000, -1000};

}  // namespace

bool PaneWindowCL::open(HWND parent) {
    return RowPane::open(kPaneClass, parent);
}

void PaneWindowCL::refreshColours() {
    view_.setHighlighting(colours_.isHighlightingOn());
    RowPane::refreshColours();
}

void PaneWindowCL::fit() {
    view_.resize(rowsInWindow(), columnsInWindow());
    refresh();
}

// ---- showing -----------------------------------------------------------------------------------------------------

void PaneWindowCL::refresh() {
    if (!window()) return;
    refreshRows();
    refreshCaret();
    showScrollBars();
    host_.viewChanged();
}

void PaneWindowCL::refreshRows() {
    const std::int32_t moved = view_.topLine() - std::exchange(shownTop_, view_.topLine());
    const bool isSideways = view_.leftColumn() != std::exchange(shownLeft_, view_.leftColumn());
    showRows(isSideways ? 0 : moved, [this](std::int32_t row) { return view_.render(row); });
}

POINT PaneWindowCL::caretPosition() const {
    const std::optional<Cell> cell = view_.caret();
    return cell ? POINT{cell->column * painter_.cellWidth(), cell->row * painter_.cellHeight()} : kOutOfSight;
}

RECT PaneWindowCL::screenAreaOf(LineIndex line, DisplayColumn from, DisplayColumn to) const {
    const LONG top = (line - view_.topLine()) * painter_.cellHeight();
    const RECT cells = {(from - view_.leftColumn()) * painter_.cellWidth(), top,
                        (to - view_.leftColumn()) * painter_.cellWidth(), top + painter_.cellHeight()};
    const RECT client = clientArea();
    RECT area{};
    IntersectRect(&area, &cells, &client);
    MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// A bar between two characters where typing inserts, a block over the character that typing replaces.
void PaneWindowCL::refreshCaret() {
    if (GetFocus() != window()) return;
    const int bar = std::max(Scaled(2, DpiOf(window())), 1);
    const SIZE size = {view_.overwrites() ? painter_.cellWidth() : bar, painter_.cellHeight()};
    if (size.cx != caretSize_.cx || size.cy != caretSize_.cy) {
        CreateCaret(window(), nullptr, size.cx, size.cy);
        ShowCaret(window());
        caretSize_ = size;
    }
    const POINT position = caretPosition();
    SetCaretPos(position.x, position.y);
}

bool PaneWindowCL::onFocusGained() {
    refreshCaret();
    return true;
}

bool PaneWindowCL::onFocusLost() {
    endDrag();
    DestroyCaret();
    caretSize_ = {};
    return true;
}

// ---- scrolling ---------------------------------------------------------------------------------------------------

ScrollState PaneWindowCL::scrollState(int bar) const {
    if (bar == SB_VERT) return {view_.lastLine().value, view_.rows(), view_.topLine().value};
    return {view_.widestColumn().value, view_.columns(), view_.leftColumn().value};
}

void PaneWindowCL::moveTo(int bar, std::int32_t position) {
    if (bar == SB_VERT) {
        view_.scrollToLine(LineIndex(position));
    } else {
        view_.scrollToColumn(DisplayColumn(position));
    }
}

// ---- keys --------------------------------------------------------------------------------------------------------

bool PaneWindowCL::onKey(const KeyMessage& key) {
    endDrag();
    const auto event = keys_.keyDown({static_cast<std::uint16_t>(key.key), static_cast<std::uint16_t>(key.repeat),
                                      key.extended, key.shift, key.control, key.alt});
    if (!event) return false;
    host_.userActs();
    if (!view_.key(*event)) return false;
    keys_.used();
    host_.keyUsed(*event);
    refresh();
    // The system must see a key pressed with Alt, or it takes the release of Alt for a wish to use the menu.
    return !key.alt;
}

bool PaneWindowCL::onCharacter(unsigned char character, UINT repeat) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const auto event = keys_.character(character, static_cast<std::uint16_t>(repeat), control);
    if (!event || !view_.key(*event)) return true;
    host_.keyUsed(*event);
    refresh();
    return true;
}

bool PaneWindowCL::onSystemCharacter(unsigned char /*character*/) {
    return keys_.dropsCharacter();
}

// ---- mouse -------------------------------------------------------------------------------------------------------

// The boundary between two characters that is nearest, or the character itself where the caret covers one.
Cell PaneWindowCL::cellAt(POINT position) const {
    const int width = painter_.cellWidth();
    const int height = painter_.cellHeight();
    const LONG x = position.x + (view_.overwrites() ? 0 : width / 2);
    const auto cells = [](LONG pixels, int cell) {
        return static_cast<std::int32_t>(pixels >= 0 ? pixels / cell : (pixels + 1) / cell - 1);
    };
    return {cells(position.y, height), cells(x, width)};
}

bool PaneWindowCL::onMousePress(const MouseButtonMessage& press) {
    dropsAltRelease_ = press.alt;
    startDrag(press.position, press.shift, kindOf(press));
    return true;
}

MousePress PaneWindowCL::kindOf(const MouseButtonMessage& press) {
    const ClickLimits limits = {GetDoubleClickTime(), GetSystemMetrics(SM_CXDOUBLECLK),
                                GetSystemMetrics(SM_CYDOUBLECLK)};
    const auto now = static_cast<std::uint32_t>(GetMessageTime());
    const bool isThird = tripleClick_.isThird({press.isDouble, press.position.x, press.position.y, now}, limits);
    if (press.alt) return MousePress::Column;
    if (isThird) return MousePress::Lines;
    return press.isDouble ? MousePress::Word : MousePress::Stream;
}

void PaneWindowCL::startMarkingLines(POINT screenPosition, bool extend) {
    ScreenToClient(window(), &screenPosition);
    startDrag(screenPosition, extend, MousePress::Lines);
}

void PaneWindowCL::startDrag(POINT position, bool extend, MousePress how) {
    constexpr UINT kScrollInterval = 50;  // milliseconds between two steps while the mouse is held outside
    SetFocus(window());
    host_.userActs();
    host_.mousePressed();
    SetCapture(window());
    SetTimer(window(), 1, kScrollInterval, nullptr);
    isDragging_ = true;
    dragPosition_ = position;
    view_.press(cellAt(position), extend, how);
    refresh();
}

// Alt was held to mark a column; on its own it would now open the menu.
bool PaneWindowCL::onSystemKeyUp(UINT key) {
    return key == VK_MENU && std::exchange(dropsAltRelease_, false);
}

bool PaneWindowCL::onMouseMove(POINT position) {
    // The system also reports mice that have not moved.
    const bool hasMoved = position.x != dragPosition_.x || position.y != dragPosition_.y;
    if (!isDragging_ || !hasMoved) return false;
    dragPosition_ = position;
    view_.drag(cellAt(position));
    refresh();
    return true;
}

// Lines that are marked beside the pane scroll only when the mouse is above or below it.
bool PaneWindowCL::onTimer(UINT_PTR /*timer*/) {
    RECT client = clientArea();
    const POINT position = {std::max<LONG>(dragPosition_.x, 0), dragPosition_.y};
    const bool isInside = PtInRect(&client, view_.isMarkingLines() ? position : dragPosition_);
    if (!isDragging_ || isInside) return true;
    view_.drag(cellAt(dragPosition_));
    refresh();
    return true;
}

bool PaneWindowCL::onMouseRelease(POINT /*position*/) {
    endDrag();
    return true;
}

bool PaneWindowCL::onCaptureLost() {
    endDrag();
    return true;
}

void PaneWindowCL::endDrag() {
    if (!std::exchange(isDragging_, false)) return;
    KillTimer(window(), 1);
    if (GetCapture() == window()) ReleaseCapture();
    view_.release();
    refresh();
}

// The commands of the menu work where it was asked for: at the mouse, unless that is over what is marked.
bool PaneWindowCL::onContextMenu(std::optional<POINT> screenPosition) {
    host_.userActs();
    if (screenPosition) {
        POINT position = *screenPosition;
        ScreenToClient(window(), &position);
        if (!view_.isMarked(cellAt(position))) {
            host_.mousePressed();
            view_.press(cellAt(position), false);
            view_.release();
            refresh();
        }
        host_.showContextMenu(*screenPosition);
    } else {
        POINT position = view_.caret() ? caretPosition() : POINT{};
        ClientToScreen(window(), &position);
        host_.showContextMenu(position);
    }
    return true;
}

}  // namespace vexa

#include "ui/lists/list_pane.h"

#include <algorithm>
#include <utility>

namespace vexa {
namespace {

const WindowClass kPaneClass{.name = "ListPaneCL"};

}  // namespace

bool ListPane::open(HWND parent) {
    return RowPane::open(kPaneClass, parent);
}

// ---- showing -----------------------------------------------------------------------------------------------------

void ListPane::refresh() {
    if (!window()) return;
    const auto count = static_cast<std::int32_t>(list_.rowCount());
    if (count == 0) left_ = widest_ = 0;
    if (!list_.selectedRow()) selection_.clear();
    top_ = std::clamp(top_, 0, std::max(count - rowsInWindow(), 0));
    drawRows();
    showScrollBars();
}

void ListPane::drawRows() {
    const std::int32_t moved = top_ - std::exchange(shownTop_, top_);
    showRows(moved, [this](std::int32_t row) { return render(static_cast<std::size_t>(top_ + row)); });
}

bool ListPane::needsMarks() const {
    const COLORREF plain = colours_.colourOf(ColourOf(RowKind::Plain));
    const COLORREF error = colours_.colourOf(ColourOf(RowKind::Error));
    const COLORREF warning = colours_.colourOf(ColourOf(RowKind::Warning));
    return plain == error || plain == warning || error == warning;
}

ViewRow ListPane::render(std::size_t row) {
    const RowView view{left_, columnsInWindow() + 1, needsMarks()};  // the last column may be seen in part
    if (row >= list_.rowCount()) return RenderListRow({}, RowKind::Plain, false, view);
    const std::string_view text = list_.rowText(row);
    widest_ = std::max(widest_, ListRowWidth(text));
    return RenderListRow(text, list_.rowKind(row), selection().holds(row), view, list_.highlight(row));
}

void ListPane::showSelection() {
    if (!window()) return;
    if (const auto row = list_.selectedRow()) {
        const auto page = static_cast<std::size_t>(rowsInWindow());
        top_ = static_cast<std::int32_t>(TopShowing(*row, static_cast<std::size_t>(top_), page));
    }
    refresh();
    UpdateWindow(window());
}

// ---- scrolling ---------------------------------------------------------------------------------------------------

// Two columns more than the widest row has tell that it ends there.
ScrollState ListPane::scrollState(int bar) const {
    if (bar == SB_VERT) return {static_cast<std::int32_t>(list_.rowCount()) - 1, rowsInWindow(), top_};
    const std::int32_t longest = std::max(static_cast<std::int32_t>(list_.longestRow()), widest_);
    return {longest + 1 + (needsMarks() ? kMarkWidth : 0), columnsInWindow(), left_};
}

void ListPane::moveTo(int bar, std::int32_t position) {
    (bar == SB_VERT ? top_ : left_) = position;
}

// ---- keys and mouse ----------------------------------------------------------------------------------------------

void ListPane::selectAndShow(std::size_t row, bool extends) {
    selection_.move(list_.selectedRow(), row, extends);
    list_.selectRow(row);
    showSelection();
}

bool ListPane::onKey(const KeyMessage& key) {
    if (key.alt || key.control) return false;
    host_.userActs();
    const ListExtent extent{list_.rowCount(), static_cast<std::size_t>(rowsInWindow())};
    if (const auto row = RowAfterKey(key.key, list_.selectedRow(), extent)) {
        selectAndShow(*row, key.shift);
    } else if (key.key == VK_LEFT || key.key == VK_RIGHT) {
        onScroll(SB_HORZ, key.key == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
    } else if (key.key == VK_RETURN && list_.selectedRow()) {
        list_.activateRow();
    } else if (key.key == VK_ESCAPE) {
        list_.stopFilling();
    } else {
        return false;
    }
    return true;
}

std::optional<std::size_t> ListPane::rowAt(POINT position) const {
    const std::int32_t row = top_ + position.y / painter_.cellHeight();
    if (position.y < 0 || static_cast<std::size_t>(row) >= list_.rowCount()) return std::nullopt;
    return static_cast<std::size_t>(row);
}

bool ListPane::onMousePress(const MouseButtonMessage& press) {
    SetFocus(window());
    host_.userActs();
    const auto row = rowAt(press.position);
    if (!row) return true;
    selectAndShow(*row, press.shift);
    if (press.isDouble) {
        list_.activateRow();
    } else {
        SetCapture(window());
    }
    return true;
}

bool ListPane::onMouseMove(POINT position) {
    if (GetCapture() != window()) return false;
    const auto row = rowAt({position.x, std::max<LONG>(position.y, 0)});
    if (row && row != list_.selectedRow()) selectAndShow(*row, true);
    return true;
}

bool ListPane::onMouseRelease(POINT /*position*/) {
    if (GetCapture() == window()) ReleaseCapture();
    return true;
}

RECT ListPane::screenAreaOfSelection() const {
    const auto row = static_cast<LONG>(list_.selectedRow().value_or(0));
    const LONG height = painter_.cellHeight();
    POINT corner{0, std::clamp<LONG>(row - top_, 0, rowsInWindow()) * height};
    ClientToScreen(window(), &corner);
    return {corner.x, corner.y, corner.x + clientArea().right, corner.y + height};
}

bool ListPane::onContextMenu(std::optional<POINT> screenPosition) {
    host_.userActs();
    if (screenPosition) {
        POINT position = *screenPosition;
        ScreenToClient(window(), &position);
        const auto row = rowAt(position);
        if (row && !selection().holds(*row)) selectAndShow(*row, false);
    }
    const RECT selected = screenAreaOfSelection();
    host_.showContextMenu(screenPosition ? *screenPosition : POINT{selected.left, selected.top});
    return true;
}

}  // namespace vexa

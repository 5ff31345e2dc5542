#include "ui/document/margin_window.h"

#include <utility>
#include <vector>

namespace vexa {
namespace {

constexpr WindowClass kMarginClass{.name = "MDImarginCL"};

}  // namespace

bool MDImarginCL::open(HWND parent) {
    return create(kMarginClass, {.style = WS_CHILD | WS_VISIBLE, .area = {0, 0, 0, 0}, .parent = parent});
}

// From the left: a bookmark's digit, the number, the mark of a changed line, a gap.
int MDImarginCL::width() const {
    return (1 + MarginDigits(view_.document())) * pane_.cellWidth() + 3 * markWidth();
}

void MDImarginCL::refresh() {
    if (!window()) return;
    const std::int32_t moved = view_.topLine() - std::exchange(shownTop_, view_.topLine());
    // Only the rows that are whole: no number is cut off.
    rows_.show(window(), static_cast<std::size_t>(view_.rows()), pane_.cellHeight(), moved,
               [this](std::int32_t row) { return RenderMarginRow(view_.document(), view_.topLine() + row); });
}

void MDImarginCL::redraw() {
    rows_.clear();
    refresh();
    InvalidateRect(window(), nullptr, FALSE);
}

bool MDImarginCL::onSize(UINT /*kind*/) {
    redraw();
    return true;
}

bool MDImarginCL::onEraseBackground(HDC /*dc*/) {
    return true;
}

// ---- drawing -----------------------------------------------------------------------------------------------------

bool MDImarginCL::onPaint(HDC dc, const RECT& update) {
    const RECT client = clientArea();
    rows_.paint(update, pane_.cellHeight(),
                [&](int top, const MarginRow& row) { drawRow(dc, top, client.right, row); });
    const RECT rest = {0, view_.rows() * pane_.cellHeight(), client.right, client.bottom};
    if (rest.top < update.bottom) fillBackground(dc, rest);
    return true;
}

// The gap has the colour of the text's paper.
void MDImarginCL::fillBackground(HDC dc, const RECT& area) const {
    const LONG gap = area.right - markWidth();
    FillColour(dc, {area.left, area.top, gap, area.bottom}, colours_.marginBackground());
    FillColour(dc, {gap, area.top, area.right, area.bottom}, colours_.colourOf(ColourElement::Background));
}

void MDImarginCL::drawRow(HDC window, int top, int width, const MarginRow& row) {
    const int height = pane_.cellHeight();
    const HDC dc = picture_.prepare(window, width, height);
    if (!dc) return;
    const Selected selected(dc, pane_.font().font.get());
    fillBackground(dc, {0, 0, width, height});
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, row.isCurrent ? colours_.colourOf(ColourElement::DefaultText) : colours_.marginText());
    const std::vector<INT> widths(row.number.size(), pane_.cellWidth());
    ExtTextOutA(dc, pane_.cellWidth(), 0, 0, nullptr, row.number.data(), static_cast<UINT>(row.number.size()),
                widths.data());
    if (row.bookmark != ' ') drawBookmark(dc, row.bookmark);
    const int mark = width - 3 * markWidth() + 1;
    if (row.isChanged) FillColour(dc, {mark, 0, mark + markWidth(), height}, colours_.changedMark());
    picture_.show(window, 0, top, width, height);
}

void MDImarginCL::drawBookmark(HDC dc, char digit) {
    FillColour(dc, {0, 0, pane_.cellWidth(), pane_.cellHeight()}, colours_.colourOf(ColourElement::MarkingBackground));
    SetTextColor(dc, colours_.colourOf(ColourElement::MarkingText));
    ExtTextOutA(dc, 0, 0, 0, nullptr, &digit, 1, nullptr);
}

// ---- mouse -------------------------------------------------------------------------------------------------------

bool MDImarginCL::onMousePress(const MouseButtonMessage& press) {
    POINT position = press.position;
    ClientToScreen(window(), &position);
    host_.marginPressed(position, press.shift);
    return true;
}

bool MDImarginCL::onWheel(const WheelMessage& turn) {
    host_.marginWheel(turn);
    return true;
}

}  // namespace vexa

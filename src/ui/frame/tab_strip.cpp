#include "ui/frame/tab_strip.h"

#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "framework/dpi.h"

namespace vexa {
namespace {

constexpr WindowClass kStripClass{.name = "TabStripCL"};

// Sizes at the normal resolution, in pixels.
constexpr int kTextMargin = 8;   // at the left and right of a text
constexpr int kTextLeading = 4;  // above and below a text
constexpr int kWidest = 240;
constexpr int kMark = 2;  // the line over the active tab

void FillStrip(HDC dc, int left, int top, int right, int bottom, int colour) {
    FillColour(dc, {left, top, right, bottom}, GetSysColor(colour));
}

struct TabColours {
    int ground;
    int text;
};

// Where windows and buttons have one colour, as in schemes of high contrast, the active tab would not stand out.
TabColours ActiveTabColours() {
    const bool standsOut = GetSysColor(COLOR_WINDOW) != GetSysColor(COLOR_BTNFACE);
    return standsOut ? TabColours{COLOR_WINDOW, COLOR_WINDOWTEXT} : TabColours{COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT};
}

// What other programs can read of the tabs.
std::string NamesOf(const std::vector<TabLabel>& labels) {
    std::string names;
    for (const TabLabel& label : labels)
        names += (names.empty() ? "" : "|") + label.text;
    return names;
}

// The structure as the first common controls had it, which later ones take as well.
TOOLINFOA ToolOf(HWND strip) {
    TOOLINFOA tool{};
    tool.cbSize = static_cast<UINT>(offsetof(TOOLINFOA, lParam));
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = strip;
    return tool;
}

}  // namespace

bool TabStripCL::open(HWND parent) {
    return create(kStripClass, {.style = WS_CHILD, .area = {0, 0, 0, 0}, .parent = parent});
}

bool TabStripCL::onCreate() {
    tip_ = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0,
                           window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    refreshFont();
    return true;
}

void TabStripCL::refreshFont() {
    const int dpi = DpiOf(window());
    const LOGFONTA description = StatusFont(dpi);
    font_ = FontHandle(CreateFontIndirectA(&description));
    height_ = MetricsOf(window(), font_.get()).tmHeight + 2 * Scaled(kTextLeading, dpi) + Scaled(kMark, dpi);
    layOut();
}

void TabStripCL::take(std::vector<TabLabel> labels, std::size_t active) {
    if (labels == labels_ && active == active_) return;
    if (dragged_ && labels.size() != labels_.size()) ReleaseCapture();
    showTipOf(std::nullopt);
    labels_ = std::move(labels);
    active_ = active;
    setText(NamesOf(labels_));
    layOut();
    if (active_ < labels_.size()) layout_.bringIn(active_);
}

// ---- drawing -----------------------------------------------------------------------------------------------------

void TabStripCL::layOut() {
    const int dpi = DpiOf(window());
    std::vector<int> widths;
    for (const TabLabel& label : labels_) {
        const int width = TextWidth(window(), font_.get(), label.text) + 2 * Scaled(kTextMargin, dpi);
        widths.push_back(std::min(width, Scaled(kWidest, dpi)));
    }
    layout_.take(std::move(widths), clientArea().right);
    InvalidateRect(window(), nullptr, FALSE);
}

bool TabStripCL::onSize(UINT /*kind*/) {
    layOut();
    if (active_ < labels_.size()) layout_.bringIn(active_);
    return true;
}

bool TabStripCL::onPaint(HDC dc, const RECT& /*update*/) {
    const RECT area = clientArea();
    if (const HDC memory = picture_.prepare(dc, area.right, area.bottom)) {
        draw(memory, area);
        picture_.show(dc, 0, 0, area.right, area.bottom);
    }
    return true;
}

void TabStripCL::draw(HDC dc, const RECT& area) const {
    const Selected selected(dc, font_.get());
    SetBkMode(dc, TRANSPARENT);
    FillStrip(dc, 0, 0, area.right, area.bottom, COLOR_BTNFACE);
    FillStrip(dc, 0, area.bottom - 1, area.right, area.bottom, COLOR_BTNSHADOW);
    for (std::size_t i = layout_.first(); i < labels_.size() && layout_.spanOf(i).left < area.right; ++i)
        drawTab(dc, i, area.bottom);
    const int mark = Scaled(kMark, DpiOf(window()));
    if (layout_.first() > 0) FillStrip(dc, 0, 0, mark, area.bottom, COLOR_BTNSHADOW);
    if (layout_.hasMoreAtRight()) FillStrip(dc, area.right - mark, 0, area.right, area.bottom, COLOR_BTNSHADOW);
}

// The active one is a part of what is below it.
void TabStripCL::drawTab(HDC dc, std::size_t index, int bottom) const {
    const int dpi = DpiOf(window());
    const auto [left, right] = layout_.spanOf(index);
    const bool isActive = index == active_;
    const TabColours colours = isActive ? ActiveTabColours() : TabColours{COLOR_BTNFACE, COLOR_BTNTEXT};
    if (isActive) {
        FillStrip(dc, left, 0, right, bottom, colours.ground);
        FillStrip(dc, left, 0, right, Scaled(kMark, dpi), COLOR_HIGHLIGHT);
    }
    FillStrip(dc, right - 1, 0, right, bottom, COLOR_BTNSHADOW);
    SetTextColor(dc, GetSysColor(colours.text));
    const int margin = Scaled(kTextMargin, dpi);
    RECT area{left + margin, Scaled(kMark, dpi), right - margin, bottom};
    const std::string& text = labels_[index].text;
    DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// ---- the mouse ---------------------------------------------------------------------------------------------------

bool TabStripCL::onMousePress(const MouseButtonMessage& press) {
    const auto index = layout_.at(press.position.x);
    if (!index) return true;
    SetCapture(window());
    dragged_ = index;
    host_.chooseTab(*index);
    return true;
}

bool TabStripCL::onMouseMove(POINT position) {
    if (!dragged_) {
        showTipOf(layout_.at(position.x));
    } else if (const auto target = layout_.dropAt(position.x, *dragged_)) {
        host_.moveTab(*dragged_, *target);
        dragged_ = target;
    }
    return true;
}

bool TabStripCL::onMouseRelease(POINT /*position*/) {
    if (dragged_) ReleaseCapture();
    return true;
}

bool TabStripCL::onCaptureLost() {
    dragged_.reset();
    return true;
}

bool TabStripCL::onWheel(const WheelMessage& turn) {
    turnWheel(turn.axis == WheelAxis::Vertical ? turn.delta : -turn.delta);
    return true;
}

void TabStripCL::turnWheel(int delta) {
    layout_.scroll(wheel_.add(delta, 1));
    showTipOf(std::nullopt);
    InvalidateRect(window(), nullptr, FALSE);
}

bool TabStripCL::onContextMenu(std::optional<POINT> screenPosition) {
    if (!screenPosition) return false;
    POINT position = *screenPosition;
    ScreenToClient(window(), &position);
    const auto index = layout_.at(position.x);
    if (!index) return true;
    host_.chooseTab(*index);
    host_.showTabMenu(*screenPosition);
    return true;
}

bool TabStripCL::onOther(Message& message) {
    if (message.number != WM_MBUTTONUP) return false;
    if (const auto index = layout_.at(GET_X_LPARAM(message.lParam))) host_.closeTab(*index);
    return true;
}

// The tip knows one area at a time, that of the tab under the mouse.
void TabStripCL::showTipOf(std::optional<std::size_t> index) {
    if (index == tipOf_ || !tip_) return;
    TOOLINFOA tool = ToolOf(window());
    if (tipOf_) SendMessageA(tip_, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    tipOf_ = index;
    if (!index) return;
    const auto [left, right] = layout_.spanOf(*index);
    tool.rect = {left, 0, right, clientArea().bottom};
    tool.lpszText = labels_[*index].tip.data();
    SendMessageA(tip_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    // The tip hears by itself of later moves alone, and the mouse may stand still from now on.
    MSG move{window(), WM_MOUSEMOVE, 0, MAKELPARAM(left, 0), 0, {}};
    SendMessageA(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&move));
}

}  // namespace vexa

#include "framework/status_bar.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "framework/dpi.h"

namespace vexa {
namespace {

constexpr WindowClass kBarClass{.name = "StatusBarCL", .background = COLOR_BTNFACE};
constexpr WindowClass kPaneClass{.name = "CtrlWindowCL"};
constexpr COLORREF kAlarmBackground = RGB(192, 0, 0);
constexpr COLORREF kAlarmText = RGB(255, 255, 255);

// Sizes at the normal resolution, in pixels.
constexpr int kGap = 2;          // around and between the panes
constexpr int kTextMargin = 5;   // at the left and right of a text
constexpr int kTextLeading = 3;  // above and below a text

}  // namespace

bool StatusPaneCL::open(HWND parent) {
    return create(kPaneClass, {.style = WS_CHILD | WS_VISIBLE, .area = {0, 0, 0, 0}, .parent = parent});
}

void StatusPaneCL::show(const std::string& text, bool highlighted) {
    if (highlighted_ != highlighted) InvalidateRect(window(), nullptr, FALSE);
    highlighted_ = highlighted;
    setText(text);
}

void StatusPaneCL::setFont(HFONT font) {
    font_ = font;
    InvalidateRect(window(), nullptr, FALSE);
}

void StatusPaneCL::onTextChanged() {
    InvalidateRect(window(), nullptr, FALSE);
}

bool StatusPaneCL::onEraseBackground(HDC /*dc*/) {
    return true;
}

bool StatusPaneCL::onMousePress(const MouseButtonMessage& /*press*/) {
    if (action_) action_();
    return true;
}

bool StatusPaneCL::onPaint(HDC dc, const RECT& /*update*/) {
    const RECT area = clientArea();
    if (const HDC memory = picture_.prepare(dc, area.right, area.bottom)) {
        draw(memory, area);
        picture_.show(dc, 0, 0, area.right, area.bottom);
    }
    return true;
}

void StatusPaneCL::draw(HDC dc, RECT area) const {
    const Selected selected(dc, font_);
    FillColour(dc, area, highlighted_ ? kAlarmBackground : GetSysColor(COLOR_BTNFACE));
    DrawEdge(dc, &area, BDR_SUNKENOUTER, BF_RECT);
    SetTextColor(dc, highlighted_ ? kAlarmText : GetSysColor(COLOR_BTNTEXT));
    SetBkMode(dc, TRANSPARENT);
    InflateRect(&area, -Scaled(kTextMargin, DpiOf(window())), 0);
    const std::string shown = text();
    DrawTextA(dc, shown.c_str(), static_cast<int>(shown.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

bool StatusBarCL::open(HWND parent) {
    return create(kBarClass, {.style = WS_CHILD | WS_CLIPCHILDREN, .area = {0, 0, 0, 0}, .parent = parent});
}

bool StatusBarCL::onCreate() {
    for (std::size_t i = 0; i <= widestTexts_.size(); ++i) {
        panes_.push_back(std::make_unique<StatusPaneCL>());
        if (!panes_.back()->open(window())) return false;
    }
    refreshFont();
    return true;
}

void StatusBarCL::refreshFont() {
    const int dpi = DpiOf(window());
    const LOGFONTA description = StatusFont(dpi);
    FontHandle font(CreateFontIndirectA(&description));
    for (const auto& pane : panes_)
        pane->setFont(font.get());
    font_ = std::move(font);
    gap_ = Scaled(kGap, dpi);
    height_ = MetricsOf(window(), font_.get()).tmHeight + 2 * (Scaled(kTextLeading, dpi) + gap_);
    layOut();
}

void StatusBarCL::setPane(std::size_t pane, const std::string& text, bool highlighted) {
    const std::size_t widest = pane > 0 ? widestTexts_[pane - 1].size() : SIZE_MAX;
    const auto room = [widest](std::size_t size) { return size == 0 ? 0 : std::max(size, widest); };
    const bool needsOtherRoom = room(panes_[pane]->text().size()) != room(text.size());
    panes_[pane]->show(text, highlighted);
    if (needsOtherRoom) layOut();
}

void StatusBarCL::setPaneAction(std::size_t pane, std::function<void()> action) {
    panes_[pane]->setAction(std::move(action));
}

bool StatusBarCL::onSize(UINT /*kind*/) {
    layOut();
    return true;
}

void StatusBarCL::layOut() {
    const RECT client = clientArea();
    const int margins = 2 * Scaled(kTextMargin, DpiOf(window())) + gap_;
    LONG right = client.right - gap_;
    for (std::size_t i = widestTexts_.size(); i > 0; --i) {
        const std::string text = panes_[i]->text();
        const bool isEmpty = text.empty();
        const std::string& widest = text.size() > widestTexts_[i - 1].size() ? text : widestTexts_[i - 1];
        const LONG left = isEmpty ? right : right - TextWidth(window(), font_.get(), widest) - margins;
        panes_[i]->place({left, gap_, right, client.bottom - gap_});
        if (!isEmpty) right = left - gap_;
    }
    panes_[0]->place({gap_, gap_, right > gap_ ? right : gap_, client.bottom - gap_});
    // The system draws only what has come into sight, and the edges have moved.
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

}  // namespace vexa

#include "framework/window_scroll_bars.h"

#include <algorithm>

namespace vexa {

void WindowScrollBars::show(HWND window, int bar, const ScrollState& wanted) {
    const ScrollState state = Shown(wanted);
    if (state == shown_[bar]) return;
    shown_[bar] = state;
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    if (bar == SB_VERT || horizontal_ == Horizontal::Always) info.fMask |= SIF_DISABLENOSCROLL;
    info.nMax = state.last;
    info.nPage = static_cast<UINT>(state.page);
    info.nPos = state.position;
    RECT client;
    GetClientRect(window, &client);
    std::optional<ScrollState>& drawn = drawn_[bar];
    const bool draws = !drawn || ThumbMoves(*drawn, state, bar == SB_VERT ? client.bottom : client.right);
    if (draws) drawn = state;
    SetScrollInfo(window, bar, &info, draws);
}

std::int32_t WindowScrollBars::target(HWND window, int bar, UINT request, const ScrollState& state) {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;  // the message itself has room for 16 bits of it only
    GetScrollInfo(window, bar, &info);
    return ScrollTarget(request, state, info.nTrackPos);
}

int WindowScrollBars::barOf(const WheelMessage& turn) {
    return turn.axis == WheelAxis::Horizontal || turn.shift ? SB_HORZ : SB_VERT;
}

// A wheel that is turned to the right or towards the user goes towards the end.
std::int32_t WindowScrollBars::target(const WheelMessage& turn, const ScrollState& state) {
    UINT linesPerNotch = 3;
    SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &linesPerNotch, 0);
    // A page at most, also for the setting "one page a notch".
    const auto most = static_cast<UINT>(std::max(state.page / state.step, 1));
    const auto perNotch = static_cast<std::int32_t>(std::min(linesPerNotch, most)) * state.step;
    const int delta = turn.axis == WheelAxis::Horizontal ? -turn.delta : turn.delta;
    const std::int32_t units = wheel_[barOf(turn)].add(delta, perNotch);
    const std::int32_t end = std::max({state.last - state.page + 1, state.position, 0});
    return std::clamp(state.position + units, 0, end);
}

}  // namespace vexa

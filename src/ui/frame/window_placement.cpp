#include "ui/frame/window_placement.h"

#include <windows.h>

#include <vector>

#include "framework/screen.h"

namespace vexa {
namespace {

ScreenRect ToScreenRect(const RECT& area) {
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

ScreenRect PlaceOnScreen(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return ToScreenRect(area);
}

// The ways in which a program can be started, as the frame's states.
FrameState StateOf(int showCommand) {
    if (showCommand == SW_SHOWMAXIMIZED) return FrameState::Maximised;
    const bool isMinimised =
        showCommand == SW_SHOWMINIMIZED || showCommand == SW_MINIMIZE || showCommand == SW_SHOWMINNOACTIVE;
    return isMinimised ? FrameState::Minimised : FrameState::Normal;
}

}  // namespace

// A maximised or minimised frame keeps the rectangle for when it is restored.
void WindowPlacement::restore(const ConfigStore& store, bool restoreSize, int showCommand) {
    const HWND frame = frame_.window();
    placement_ = LoadFramePlacement(store, restoreSize, StateOf(showCommand), PlaceOnScreen(frame));
    std::vector<ScreenRect> areas;
    for (const RECT& area : WorkAreas())
        areas.push_back(ToScreenRect(area));
    placement_.normal = KeptOnScreen(placement_.normal, areas);
    const ScreenRect& area = placement_.normal;
    MoveWindow(frame, area.x, area.y, area.width, area.height, FALSE);
    isShown_ = true;
    ShowWindow(frame, static_cast<int>(placement_.state));
}

void WindowPlacement::noteSize(UINT kind) {
    static constexpr FrameState kStates[] = {FrameState::Normal, FrameState::Minimised, FrameState::Maximised};
    if (isShown_ && kind <= SIZE_MAXIMIZED) placement_.noteSize(kStates[kind], PlaceOnScreen(frame_.window()));
}

void WindowPlacement::noteMove() {
    const HWND frame = frame_.window();
    if (isShown_ && !IsIconic(frame) && !IsZoomed(frame)) placement_.noteMove(PlaceOnScreen(frame));
}

}  // namespace vexa

#include "framework/windows_behind.h"

namespace vexa {
namespace {

HWND KeyboardWindow() {
    const HWND focus = GetFocus();
    return focus ? focus : GetActiveWindow();
}

HWND MainWindowOf(HWND window) {
    return GetAncestor(window, GA_ROOTOWNER);
}

}  // namespace

// A dialog keeps in mind which of its fields has the keyboard, and what is selected there, when another window becomes
// the active one; not when it is switched off.
WindowsBehind::WindowsBehind(HWND owner)
    : owner_(owner), keyboard_(KeyboardWindow()), hadKeyboard_(concerns(GetAncestor(keyboard_, GA_ROOT))) {
    if (hadKeyboard_ && owner_) SetActiveWindow(owner_);
    EnumThreadWindows(GetCurrentThreadId(), &SwitchOff, reinterpret_cast<LPARAM>(this));
}

WindowsBehind::~WindowsBehind() {
    while (count_ > 0)
        EnableWindow(windows_[--count_], TRUE);
    if (hadKeyboard_) SetFocus(keyboard_);
}

bool WindowsBehind::concerns(HWND window) const {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return false;
    return !owner_ || (window != owner_ && MainWindowOf(window) == MainWindowOf(owner_));
}

BOOL CALLBACK WindowsBehind::SwitchOff(HWND window, LPARAM self) {
    auto& behind = *reinterpret_cast<WindowsBehind*>(self);
    if (!behind.concerns(window)) return TRUE;
    behind.windows_[behind.count_++] = window;
    EnableWindow(window, FALSE);
    return behind.count_ < kMost;
}

}  // namespace vexa

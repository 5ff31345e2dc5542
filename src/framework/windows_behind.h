// The windows that wait while a modal dialog is open.
#pragma once

#include <windows.h>

#include <cstddef>

namespace vexa {

// While it lives, the visible windows beside the owner of a modal dialog take no keys and no mouse: all that belong to
// the same main window, and that one. The dialog itself switches its owner off, and on again before it goes; with no
// window left that could have the keyboard, the system would give it to another program.
class WindowsBehind {
  public:
    // Without an owner, every window of the program waits.
    explicit WindowsBehind(HWND owner);
    // Gives the keyboard back to the window that had it, if that had to wait.
    ~WindowsBehind();
    WindowsBehind(const WindowsBehind&) = delete;
    WindowsBehind& operator=(const WindowsBehind&) = delete;

  private:
    static BOOL CALLBACK SwitchOff(HWND window, LPARAM behind);
    bool concerns(HWND window) const;

    // A box may have to tell of a lack of memory. More windows than these are never open side by side.
    static constexpr std::size_t kMost = 16;

    const HWND owner_;
    const HWND keyboard_;     // had it before
    const bool hadKeyboard_;  // one of those that wait
    HWND windows_[kMost];
    std::size_t count_ = 0;
};

}  // namespace vexa

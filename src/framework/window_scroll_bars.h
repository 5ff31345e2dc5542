// The two scroll bars of a window, and the wheels that scroll it.
#pragma once

#include <windows.h>

#include <optional>

#include "framework/scroll_rules.h"
#include "framework/window.h"

namespace vexa {

// Bars are SB_VERT and SB_HORZ.
class WindowScrollBars {
  public:
    // While all is seen, a bar is shown without effect, or the horizontal one not at all.
    enum class Horizontal { Always, WhenNeeded };
    explicit WindowScrollBars(Horizontal horizontal = Horizontal::Always) : horizontal_(horizontal) {}

    // Shows a state. A thumb that would look the same is not drawn again.
    void show(HWND window, int bar, const ScrollState& state);
    // The position that a request of a bar asks for.
    static std::int32_t target(HWND window, int bar, UINT request, const ScrollState& state);
    // The bar that a wheel moves; with Shift, the vertical one moves the window sideways.
    static int barOf(const WheelMessage& turn);
    // The position that the turn of a wheel asks for, given the state of its bar.
    std::int32_t target(const WheelMessage& turn, const ScrollState& state);

  private:
    const Horizontal horizontal_;
    ScrollState shown_[2];                 // by bar
    std::optional<ScrollState> drawn_[2];  // the same, when the bar was last drawn
    WheelSteps wheel_[2];
};

}  // namespace vexa

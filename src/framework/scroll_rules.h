// Where scroll bars and mouse wheels move a window to.
#pragma once

#include <cstdint>

namespace vexa {

// One scroll bar, in units of its window: lines, columns or pixels.
struct ScrollState {
    std::int32_t last = 0;      // the last unit that can be scrolled to
    std::int32_t page = 1;      // how many are seen at once
    std::int32_t position = 0;  // the first one seen
    std::int32_t step = 1;      // how many a click on an arrow, or a line of a wheel, goes on

    bool operator==(const ScrollState&) const = default;
};

// The state as it is shown: a window scrolled beyond the last line has its bar at the end.
ScrollState Shown(ScrollState state);

// Whether the thumb of a bar of so many pixels looks different in the two states; a thumb that would move by less than
// half a pixel does not. Drawing a bar costs more than a line of text.
bool ThumbMoves(const ScrollState& from, const ScrollState& to, std::int32_t pixels);

// The position that a request of a scroll bar asks for, not below 0. Requests are numbered as Windows numbers them
// (SB_LINEUP and so on); `track` is the position to which the user has dragged the thumb. Unknown requests move
// nothing.
std::int32_t ScrollTarget(unsigned request, const ScrollState& state, std::int32_t track);

// Turns the steps of a wheel, which can be smaller than a notch, into whole units.
class WheelSteps {
  public:
    // A notch is a delta of 120. Units to scroll down (up below 0); what is left over counts with the next delta,
    // unless the wheel then turns the other way.
    std::int32_t add(std::int32_t delta, std::int32_t unitsPerNotch);

  private:
    std::int32_t rest_ = 0;  // in units times the delta of a notch
};

}  // namespace vexa

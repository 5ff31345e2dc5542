// Which press of the mouse is the third of a triple click; the system tells no more than double ones.
#pragma once

#include <cstdint>

namespace vexa {

struct MouseClick {
    bool isDouble = false;  // the second press of a double click
    std::int32_t x = 0;     // in pixels
    std::int32_t y = 0;
    std::uint32_t time = 0;  // in milliseconds, of a count that starts again after its largest number
};

// How far apart the presses of one click may be.
struct ClickLimits {
    std::uint32_t time = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

class TripleClick {
  public:
    // To be told of every press.
    bool isThird(const MouseClick& press, const ClickLimits& limits);

  private:
    MouseClick last_;
};

}  // namespace vexa

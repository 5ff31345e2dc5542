#include "ui/document/click_rules.h"

#include <cstdlib>
#include <utility>

namespace vexa {

bool TripleClick::isThird(const MouseClick& press, const ClickLimits& limits) {
    const MouseClick last = std::exchange(last_, press);
    const bool isClose = std::abs(press.x - last.x) <= limits.width && std::abs(press.y - last.y) <= limits.height;
    return last.isDouble && !press.isDouble && isClose && press.time - last.time <= limits.time;
}

}  // namespace vexa

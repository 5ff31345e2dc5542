// The parts of the screens that programs may use: without the task bar and what else is docked. In screen pixels.
#pragma once

#include <windows.h>

#include <vector>

namespace vexa {

// One for each screen.
std::vector<RECT> WorkAreas();
// Of the screen that most of the rectangle is on, else of the nearest one.
RECT WorkAreaNear(const RECT& rectangle);

}  // namespace vexa

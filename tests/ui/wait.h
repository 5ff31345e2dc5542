// Waiting for something that another program is about to do.
#pragma once

#include <functional>

namespace vexa::test {

// How long something that does not happen is waited for, in milliseconds.
inline constexpr unsigned kPatience = 40000;

// Looks again and again until the condition holds; false when it never does.
bool WaitUntil(const std::function<bool()>& condition);

// Lets the window in front and the desktop take what the display has told of keys and mouse until now. Else it comes
// late: whenever a window gets the focus or the mouse, Wine takes the keys' state from the display, which knows nothing
// of keys that are pressed here, so Shift, Ctrl or Alt would go up in the middle of a chord; and the mouse jumps back
// to where it was before.
void AwaitDisplaysNews();

}  // namespace vexa::test

// Lets tests decide when the work of other threads is done. The host has no threads for it, so that every test sees the
// same order of events.
#pragma once

namespace vexa::platform::host {

// Held work is done when it is asked about after its release, or at its object's end. Not held by default: work is done
// at once.
void HoldBackground(bool isHeld);

}  // namespace vexa::platform::host

// Lets tests decide when the work of other threads is done. The host has no threads for it, so that every test sees the
// same order of events.
#pragma once

namespace vexa::platform::host {

// Work is done when it has been asked about more often than that from now on, or at its object's end. 0, as it is
// without a test: at its beginning.
void HoldBackground(int asks);

}  // namespace vexa::platform::host

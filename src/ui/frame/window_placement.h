// Where the frame stands on the screen, brought over from one session to the next.
#pragma once

#include "base/config_store.h"
#include "framework/window.h"
#include "shell/frame_placement.h"

namespace vexa {

class WindowPlacement {
  public:
    explicit WindowPlacement(const WindowCL& frame) : frame_(frame) {}

    // Shows the frame where it was last, in that state if the user wants it back, else as the program was started. From
    // then on the placement is the user's.
    void restore(const ConfigStore& store, bool restoreSize, int showCommand);
    // The frame has been sized or moved; the kind is that of the system's message.
    void noteSize(UINT kind);
    void noteMove();
    void save(ConfigStore& store) const { SaveFramePlacement(store, placement_); }

  private:
    const WindowCL& frame_;
    FramePlacement placement_;
    bool isShown_ = false;
};

}  // namespace vexa

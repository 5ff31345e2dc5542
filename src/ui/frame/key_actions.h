// The keys that the frame carries out itself, by those who carry them out.
#pragma once

#include <map>

#include "base/callback.h"
#include "shell/frame_keys.h"

namespace vexa {

class KeyActions {
  public:
    void RegisterAction(FrameAction action, Callback<void()> run) { runs_[action] = run; }
    // Carries out a key that is the frame's own; false for any other. Each action must have been registered.
    bool use(const KeyEvent& event, bool inText) const {
        const auto action = FrameActionOf(event, inText);
        if (action) runs_.at (*action)();
        return action.has_value();
    }

  private:
    std::map<FrameAction, Callback<void()>> runs_;
};

}  // namespace vexa

// The keys that the frame carries out itself, by those who carry them out.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include "shell/frame_keys.h"

namespace vexa {

class KeyActions {
  public:
    void RegisterAction(FrameAction action, std::function<void()> run) { runs_[action] = std::move(run); }
    // Carries out a key that is the frame's own; false for any other. Each action must have been registered.
    bool use(const KeyEvent& event, bool inText) const {
        const auto action = FrameActionOf(event, inText);
        if (action) runs_.at (*action)();
        return action.has_value();
    }

  private:
    std::map<FrameAction, std::function<void()>> runs_;
};

}  // namespace vexa

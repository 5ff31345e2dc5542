// A timer of the frame's window, which is told of it by its number.
#pragma once

#include "external/poll_timer.h"
#include "framework/window.h"

namespace vexa {

class FrameTimer : public PollTimer {
  public:
    FrameTimer(const WindowCL& frame, UINT_PTR number) : frame_(frame), number_(number) {}

    UINT_PTR number() const { return number_; }
    void start(int milliseconds) override {
        SetTimer(frame_.window(), number_, static_cast<UINT>(milliseconds), nullptr);
    }
    void stop() override { KillTimer(frame_.window(), number_); }

  private:
    const WindowCL& frame_;
    const UINT_PTR number_;
};

}  // namespace vexa

// A timer by which an owner asks again and again whether its program has ended.
#pragma once

namespace vexa {

class PollTimer {
  public:
    virtual ~PollTimer() = default;
    // The owner's Tick is called from the message loop each time the interval has passed, until stop. A timer that runs
    // starts over.
    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;
};

}  // namespace vexa

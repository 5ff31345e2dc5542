#include "base/platform/host/background.h"

#include "base/platform.h"

namespace vexa::platform {

namespace {

int g_asks = 0;

}  // namespace

void host::HoldBackground(int asks) {
    g_asks = asks;
}

// What is begun is done when it is asked for next.
struct BackgroundWork::Thread {};

BackgroundWork::BackgroundWork(Function function, void* context) : function_(function), context_(context) {}

BackgroundWork::~BackgroundWork() {
    if (isRunning_) run();
}

void BackgroundWork::begin() {
    isRunning_ = true;
    if (g_asks == 0) run();
}

bool BackgroundWork::isRunning() {
    const bool isHeld = g_asks > 0 && isRunning_;
    if (isHeld) --g_asks;
    if (isRunning_ && !isHeld) run();
    return isRunning_;
}

void BackgroundWork::run() {
    isRunning_ = false;
    function_(context_);
}

}  // namespace vexa::platform

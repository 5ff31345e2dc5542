#include "base/platform/host/background.h"

#include "base/platform.h"

namespace vexa::platform {

namespace {

bool g_isHeld = false;

}  // namespace

void host::HoldBackground(bool isHeld) {
    g_isHeld = isHeld;
}

BackgroundWork::BackgroundWork(Function function, void* context) : function_(function), context_(context) {
    if (!g_isHeld) run();
}

BackgroundWork::~BackgroundWork() {
    if (!hasEnded_) run();
}

bool BackgroundWork::hasEnded() {
    if (!hasEnded_ && !g_isHeld) run();
    return hasEnded_;
}

void BackgroundWork::run() {
    hasEnded_ = true;
    function_(context_);
}

}  // namespace vexa::platform

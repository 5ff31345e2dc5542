#include "ui/frame/keyboard_watch.h"

#include <utility>

namespace vexa {

std::int64_t KeyboardWatch::milliseconds() {
    const DWORD now = GetTickCount();
    elapsed_ += now - std::exchange(lastTick_, now);
    return elapsed_;
}

bool KeyboardWatch::stopAsked() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) return true;
    }
    return false;
}

}  // namespace vexa

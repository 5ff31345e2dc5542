#include "ui/frame/keyboard_watch.h"

#include <utility>

#include "framework/message_loop.h"

namespace vexa {

std::int64_t KeyboardWatch::milliseconds() {
    const DWORD now = GetTickCount();
    elapsed_ += now - std::exchange(lastTick_, now);
    return elapsed_;
}

bool KeyboardWatch::stopAsked() {
    MSG message{};
    while (TakeMessage(message, WM_KEYFIRST, WM_KEYLAST)) {
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) return true;
    }
    return false;
}

}  // namespace vexa

#include "framework/message_loop.h"

#include "framework/frame.h"

namespace vexa {

int MessageLoop::run() {
    MSG message{};
    for (;;) {
        idle();
        const BOOL got = GetMessageA(&message, nullptr, 0, 0);
        if (got == 0) break;
        // Below 0 the system had no memory for a message, as large as another program chose to make it: that one is
        // lost.
        if (got > 0) process(message);
    }
    return static_cast<int>(message.wParam);
}

void MessageLoop::idle() {
    MSG message{};
    while (!PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!frame_.workWhileIdle()) return;
    }
}

bool MessageLoop::PumpMessages() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (message.message == WM_QUIT) return true;
        if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) process(message);
    }
    return false;
}

void MessageLoop::processKey(MSG& message) {
    process(message);
    MSG character{};
    while (PeekMessageA(&character, nullptr, WM_CHAR, WM_DEADCHAR, PM_REMOVE) ||
           PeekMessageA(&character, nullptr, WM_SYSCHAR, WM_SYSDEADCHAR, PM_REMOVE))
        process(character);
}

void MessageLoop::process(MSG& message) {
    if (frame_.translate(message)) return;
    const bool isForDialog = modelessDialog_ && IsWindow(modelessDialog_);
    if (isForDialog && IsDialogMessageA(modelessDialog_, &message)) return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

}  // namespace vexa

#include "framework/message_loop.h"

#include "framework/frame.h"

namespace vexa {

bool TakeMessage(MSG& message, UINT first, UINT last) {
    return PeekMessageA(&message, nullptr, first, last, PM_NOREMOVE) && message.message != WM_QUIT &&
           PeekMessageA(&message, nullptr, first, last, PM_REMOVE);
}

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
    while (TakeMessage(message, 0, 0))
        process(message);
    return message.message == WM_QUIT;
}

void MessageLoop::processKey(MSG& message) {
    process(message);
    MSG character{};
    while (TakeMessage(character, WM_CHAR, WM_DEADCHAR) || TakeMessage(character, WM_SYSCHAR, WM_SYSDEADCHAR))
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

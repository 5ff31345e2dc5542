#include "framework/message_loop.h"

#include <utility>

#include "framework/frame.h"

namespace vexa {

bool TakeMessage(MSG& message, UINT first, UINT last) {
    return PeekMessageA(&message, nullptr, first, last, PM_NOREMOVE) && message.message != WM_QUIT &&
           PeekMessageA(&message, nullptr, first, last, PM_REMOVE);
}

int MessageLoop::run() {
    running_ = this;
    const HHOOK hook = SetWindowsHookExA(WH_MSGFILTER, &OnDialogMessage, nullptr, GetCurrentThreadId());
    MSG message{};
    for (;;) {
        idle();
        const BOOL got = GetMessageA(&message, nullptr, 0, 0);
        if (got == 0) break;
        // Below 0 the system had no memory for a message, as large as another program chose to make it: that one is
        // lost.
        if (got > 0) process(message);
    }
    UnhookWindowsHookEx(hook);
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
    if (use(message)) return;
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

bool MessageLoop::use(MSG& message) {
    const bool wasUsing = std::exchange(isUsing_, true);
    const bool isUsed =
        frame_.translate(message) || (IsWindow(modelessDialog_) && IsDialogMessageA(modelessDialog_, &message));
    isUsing_ = wasUsing;
    return isUsed;
}

// A modal dialog takes the messages of the whole program, and asks this of each before it. Where the frame can be used
// beside one, its keys are to do what they always do. The dialog beside the frame asks too, of what is in use already.
LRESULT CALLBACK MessageLoop::OnDialogMessage(int code, WPARAM wParam, LPARAM lParam) noexcept {
    const bool isNew = code == MSGF_DIALOGBOX && !running_->isUsing_;
    if (isNew && running_->use(*reinterpret_cast<MSG*>(lParam))) return TRUE;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace vexa

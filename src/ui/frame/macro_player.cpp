#include "ui/frame/macro_player.h"

namespace vexa {

bool MacroPlayer::playKey(const KeyEvent& event) {
    DocumentWindow* active = documents_.active();
    if (keys_.use(event, active != nullptr)) return true;
    if (active) active->view().key(event);
    return active != nullptr;
}

void MacroPlayer::playMessage(const MacroMessage& message) {
    SendMessageA(reinterpret_cast<HWND>(message.window), message.message, message.first, message.second);
}

void MacroPlayer::updateDisplay() {
    DocumentWindow* active = documents_.active();
    if (!active) return;
    active->refresh();
    UpdateWindow(active->window());
}

}  // namespace vexa

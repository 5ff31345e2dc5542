#include "framework/held_keys.h"

#include <algorithm>
#include <iterator>

#include "framework/message_loop.h"

namespace vexa {

bool HeldKeys::hold(const MSG& message) {
    static constexpr UINT kKeyMessages[] = {WM_KEYDOWN, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP};
    if (std::ranges::find(kKeyMessages, message.message) == std::end(kKeyMessages)) return false;
    Key key{message, {}};
    GetKeyboardState(key.keyboard.data());
    keys_.push_back(key);
    return true;
}

// A key that is given back may make the program act again, which ends with giving back, too.
void HeldKeys::giveBack(MessageLoop& loop) {
    if (isGivingBack_ || keys_.empty()) return;
    isGivingBack_ = true;
    Keyboard now{};
    GetKeyboardState(now.data());
    while (!keys_.empty()) {
        Key key = keys_.front();
        keys_.pop_front();
        give(key, loop);
    }
    SetKeyboardState(now.data());
    isGivingBack_ = false;
}

// The keyboard's focus may have moved since the key was pressed.
void HeldKeys::give(Key& key, MessageLoop& loop) {
    SetKeyboardState(key.keyboard.data());
    if (const HWND focus = GetFocus()) key.message.hwnd = focus;
    loop.processKey(key.message);
}

}  // namespace vexa

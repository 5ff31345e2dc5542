// How the keyboard's messages become the keystrokes of the edit view: which keys are commands, and which are only on
// their way to being characters.
#pragma once

#include <cstdint>
#include <optional>

#include "document/view/key_event.h"

namespace vexa {

// A key that went down, as the system reports it.
struct KeyPress {
    std::uint16_t key = 0;  // virtual-key code
    std::uint16_t repeat = 1;
    bool extended = false;  // one of the keys that the numeric keypad has a twin of
    bool shift = false;
    bool control = false;
    bool alt = false;
};

// A key used by the view must not also arrive as the character that the system makes of it.
class KeyTranslator {
  public:
    // The keystroke to offer to the view; none for a key that only types.
    std::optional<KeyEvent> keyDown(const KeyPress& press);
    // The view has used the keystroke: the character made of it is dropped.
    void used() { dropsCharacter_ = true; }
    // The typed character; none for one that is dropped.
    std::optional<KeyEvent> character(unsigned char character, std::uint16_t repeat, bool control);
    // Whether the character of an Alt key belongs to a key that the view has used; it is not looked up in the menus
    // then.
    bool dropsCharacter() const { return dropsCharacter_; }

  private:
    bool dropsCharacter_ = false;
};

}  // namespace vexa

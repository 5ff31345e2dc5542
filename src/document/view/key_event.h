// A keystroke as the edit view receives it: small, copyable and comparable, so that it can be kept and played again.
#pragma once

#include <cstdint>

namespace vexa {

// The keys that the edit view knows by their virtual-key codes, as Windows numbers them. Letters and digits are their
// upper-case ASCII codes.
enum VirtualKey : std::uint16_t {
    kKeyNone = 0,  // the event is a typed character
    kKeyBackspace = 0x08,
    kKeyTab = 0x09,
    kKeyEnter = 0x0D,
    kKeyEscape = 0x1B,
    kKeyPageUp = 0x21,
    kKeyPageDown = 0x22,
    kKeyEnd = 0x23,
    kKeyHome = 0x24,
    kKeyLeft = 0x25,
    kKeyUp = 0x26,
    kKeyRight = 0x27,
    kKeyDown = 0x28,
    kKeyInsert = 0x2D,
    kKeyDelete = 0x2E,
    kKeyAdd = 0x6B,  // plus and minus of the numeric keypad
    kKeySubtract = 0x6D,
};

// Either a key (key set, character 0) or a typed character (key kKeyNone).
struct KeyEvent {
    std::uint16_t key = kKeyNone;
    unsigned char character = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool keypad = false;  // on the numeric keypad
    std::uint16_t repeat = 1;

    bool operator==(const KeyEvent&) const = default;
};

}  // namespace vexa

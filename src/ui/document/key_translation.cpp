#include "ui/document/key_translation.h"

namespace vexa {
namespace {

// Virtual-key codes as Windows numbers them.
constexpr std::uint16_t kKeyClear = 0x0C;  // the 5 of the keypad without Num Lock
constexpr std::uint16_t kKeyNumpad0 = 0x60;
constexpr std::uint16_t kKeyNumpad9 = 0x69;
constexpr std::uint16_t kKeyMultiply = 0x6A;
constexpr std::uint16_t kKeyDivide = 0x6F;
constexpr unsigned char kFirstPrintable = 32;
constexpr unsigned char kDeleteCharacter = 127;

bool MovesOrEdits(std::uint16_t key) {
    return (key >= kKeyPageUp && key <= kKeyDown) || key == kKeyInsert || key == kKeyDelete || key == kKeyClear;
}

// The keys that have a twin in the middle of the keyboard are marked there, only Enter the other way round.
bool IsOnKeypad(const KeyPress& press) {
    if (press.key == kKeyEnter) return press.extended;
    if (MovesOrEdits(press.key)) return !press.extended;
    return press.key >= kKeyNumpad0 && press.key <= kKeyDivide;
}

// Alt with digits of the keypad enters a character by its code.
bool EntersCharacterCode(const KeyPress& press) {
    const bool isDigit = press.key >= kKeyNumpad0 && press.key <= kKeyNumpad9;
    return press.alt && IsOnKeypad(press) && (isDigit || MovesOrEdits(press.key)) && press.key < kKeyMultiply;
}

}  // namespace

std::optional<KeyEvent> KeyTranslator::keyDown(const KeyPress& press) {
    dropsCharacter_ = false;
    // The right Alt key of many keyboards reports itself as Ctrl and Alt, and types what is printed on the keys.
    const bool isAltGr = press.control && press.alt;
    if (isAltGr || EntersCharacterCode(press)) return std::nullopt;
    KeyEvent event;
    event.key = press.key;
    event.repeat = press.repeat;
    event.shift = press.shift;
    event.control = press.control;
    event.alt = press.alt;
    event.keypad = IsOnKeypad(press);
    return event;
}

std::optional<KeyEvent> KeyTranslator::character(unsigned char character, std::uint16_t repeat, bool control) {
    const bool isControlCharacter = character < kFirstPrintable || (control && character == kDeleteCharacter);
    if (dropsCharacter_ || isControlCharacter) return std::nullopt;
    KeyEvent event;
    event.character = character;
    event.repeat = repeat;
    return event;
}

}  // namespace vexa

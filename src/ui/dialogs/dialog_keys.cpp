#include "ui/dialogs/dialog_keys.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr std::uint16_t kHelpKey = 0x70;  // F1, which explains the dialog

struct FieldKey {
    std::uint16_t key;
    bool control;
    bool shift;
};

constexpr FieldKey kFieldKeys[] = {
    {'C', true, false},        {'V', true, false},        {'X', true, false},        {'Z', true, false},
    {kKeyInsert, true, false}, {kKeyDelete, true, false}, {kKeyInsert, false, true}, {kKeyDelete, false, true},
};

// These work with Ctrl, and mark with Shift.
constexpr std::uint16_t kFieldMovements[] = {kKeyLeft, kKeyRight, kKeyHome, kKeyEnd, kKeyPageUp, kKeyPageDown};

bool IsFieldKey(const KeyEvent& event) {
    const auto isPressed = [&event](const FieldKey& row) {
        return row.key == event.key && row.control == event.control && row.shift == event.shift;
    };
    const bool moves = event.control && std::ranges::find(kFieldMovements, event.key) != std::end(kFieldMovements);
    return moves || std::ranges::any_of(kFieldKeys, isPressed);
}

}  // namespace

char MnemonicOf(const std::string& controlText) {
    for (std::size_t i = 0; i + 1 < controlText.size(); ++i) {
        if (controlText[i] != '&') continue;
        if (controlText[++i] != '&') return UpperAscii(controlText[i]);
    }
    return '\0';
}

DialogKeyUse DialogKeyUseOf(const KeyEvent& event, std::span<const std::string> controlTexts, bool inField) {
    if (event == KeyEvent{.key = kHelpKey}) return DialogKeyUse::Own;
    const auto isWorked = [&event](const std::string& text) { return event.key == MnemonicOf(text); };
    if (event.alt)
        return !event.control && std::ranges::any_of(controlTexts, isWorked) ? DialogKeyUse::Own : DialogKeyUse::None;
    if (!inField) return DialogKeyUse::None;
    if (event.key == 'A' && event.control && !event.shift) return DialogKeyUse::MarkField;
    return IsFieldKey(event) ? DialogKeyUse::Own : DialogKeyUse::None;
}

}  // namespace vexa

// Which keys a dialog that is open beside the documents keeps for itself.
#pragma once

#include <span>
#include <string>

#include "document/view/key_event.h"

namespace vexa {

enum class DialogKeyUse : std::uint8_t {
    None,      // the key means nothing to the dialog: it may be one of the frame's
    Own,       // the dialog, or its text field, knows what to do
    MarkField  // marks all of the text field, which not every Windows does by itself
};

// The letter that works a control together with Alt, in upper case; NUL when the text has none.
char MnemonicOf(const std::string& controlText);

// What a key means to a dialog whose controls show these texts; inField when one of its text fields has the focus.
DialogKeyUse DialogKeyUseOf(const KeyEvent& event, std::span<const std::string> controlTexts, bool inField);

}  // namespace vexa

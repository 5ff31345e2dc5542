// Changing the letter case of the marked text or of the word under the cursor.
#pragma once

#include <cstdint>

#include "document/view/line_editor.h"

namespace vexa {

enum class CaseChange : std::uint8_t { Toggle, Lower, Upper };

// Works on ASCII letters; characters above 127 mean different letters in different code pages and stay. With a marking
// the marked text is changed and stays marked; without one the word is, and the cursor stays. False, and the user is
// told, when there is no word. The caller closes the undo group.
bool ChangeCase(TextDocument& document, LineEditor& editor, CaseChange change);

}  // namespace vexa

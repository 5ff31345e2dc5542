// Which key does what in the edit view, and how its user is told of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/view/editing.h"
#include "document/view/key_event.h"

namespace vexa {

// A movement is free to come with Shift, which marks; every other key wants Shift as its modifiers say.
struct ViewKey {
    enum Kind : std::uint8_t { kMove, kEdit };
    enum Modifier : unsigned { kPlain = 0, kShift = 1, kControl = 2, kAlt = 4 };

    std::uint16_t key;
    unsigned modifiers;
    Kind kind;
    ViewAction action;
    std::string_view description;
};

// None when the view has no use for the key.
const ViewKey* FindViewKey(const KeyEvent& event);

struct ViewKeyHelp {
    std::string key;  // "Ctrl+Left"
    std::string_view description;
    bool isMovement = false;  // with Shift it also marks
};

std::vector<ViewKeyHelp> ViewKeyList();

}  // namespace vexa

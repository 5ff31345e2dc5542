// Keys that the main window carries out itself: they have no place in the table of commands, or none with their key.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "document/view/key_event.h"

namespace vexa {

enum class FrameAction : std::uint8_t {
    ToggleMatchCase,
    ToggleRegularExpression,
    OpenInclude,
    ListFunctions,
    FindAtCaret,
    ResetZoom
};

// What a key does, in the text of a document or elsewhere (in a dialog that is open beside it); none for other keys.
std::optional<FrameAction> FrameActionOf(const KeyEvent& event, bool inText);

struct FrameKeyHelp {
    std::string_view key;
    std::string_view description;
};
std::vector<FrameKeyHelp> FrameKeyList();

}  // namespace vexa

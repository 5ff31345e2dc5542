// Where dialogs reopen: the position of a dialog's top-left corner relative to its owner's, kept in the settings file
// (section "Dialog%d", keys "XPos" and "YPos").
#pragma once

#include <cstdint>
#include <optional>

#include "base/config_store.h"

namespace vexa {

// In screen pixels.
struct ScreenPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const ScreenPoint&) const = default;
};

// Where to put the dialog's corner, never left of or above the screen's origin; none to leave it at its default
// position, which also stands for a kept offset of 0 on either axis.
std::optional<ScreenPoint> RestoreDialogPosition(const ConfigStore& store, int dialog, ScreenPoint owner);

void SaveDialogPosition(ConfigStore& store, int dialog, ScreenPoint owner, ScreenPoint corner);

}  // namespace vexa

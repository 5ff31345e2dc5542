// The rules of the "Macro Repeat" dialog.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/notices.h"

namespace vexa {

// Kept from one use to the next, so that the field shows the number last accepted.
struct MacroRepeatModel {
    static constexpr std::int32_t kMost = 9999;

    std::string count = "1";  // as typed

    // The number of times to play, and the dialog closes; none, and the status line tells why, for what is no number
    // from 1 to 9999.
    std::optional<std::int32_t> accept(Notices& notices) const;
};

}  // namespace vexa

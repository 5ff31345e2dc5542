#include "shell/macro_repeat_model.h"

#include "base/ascii.h"

namespace vexa {

std::optional<std::int32_t> MacroRepeatModel::accept(Notices& notices) const {
    const std::int32_t number = LeadingInteger(count);
    if (number >= 1 && number <= kMost) return number;
    notices.status("The number of playbacks must be 1 to 9999.", true, true);
    return std::nullopt;
}

}  // namespace vexa

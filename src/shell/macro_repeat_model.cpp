#include "shell/macro_repeat_model.h"

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

std::optional<std::int32_t> MacroRepeatModel::accept(Notices& notices) const {
    const std::int32_t number = LeadingInteger(count);
    if (number >= 1 && number <= kMost) return number;
    notices.status(LoadText(TextId::BadPlaybackCount), true, true);
    return std::nullopt;
}

}  // namespace vexa

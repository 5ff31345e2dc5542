#include "ui/dialogs/dialog_corner.h"

#include <algorithm>
#include <iterator>

namespace vexa {

namespace {

constexpr std::int32_t kGap = 8;  // pixels, so that the match is seen with a little of what is around it

bool Overlap(const ScreenArea& a, const ScreenArea& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

std::optional<ScreenCorner> CornerClearOf(const ScreenArea& match, const ScreenArea& dialog, const ScreenArea& screen) {
    if (!Overlap(match, dialog)) return std::nullopt;
    const std::int32_t width = dialog.right - dialog.left;
    const std::int32_t height = dialog.bottom - dialog.top;
    const std::int32_t left = std::max(std::min(dialog.left, screen.right - width), screen.left);
    const std::int32_t top = std::max(std::min(dialog.top, screen.bottom - height), screen.top);
    const ScreenCorner corners[] = {
        {left, match.bottom + kGap},
        {left, match.top - kGap - height},
        {match.right + kGap, top},
        {match.left - kGap - width, top},
    };
    const auto isOnScreen = [&](const ScreenCorner& corner) {
        return corner.left >= screen.left && corner.top >= screen.top && corner.left + width <= screen.right &&
               corner.top + height <= screen.bottom;
    };
    const auto* const found = std::ranges::find_if(corners, isOnScreen);
    if (found == std::end(corners)) return std::nullopt;
    return *found;
}

}  // namespace vexa

// Where a dialog goes that would hide what it has found.
#pragma once

#include <cstdint>
#include <optional>

namespace vexa {

// A rectangle of the screen, in pixels; right and bottom are the first ones outside.
struct ScreenArea {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

struct ScreenCorner {
    std::int32_t left = 0;
    std::int32_t top = 0;

    bool operator==(const ScreenCorner&) const = default;
};

// The top left corner at which a dialog lies clear of the match, on that screen and as near as it can: below the match,
// else above it, to its right or to its left. None when it lies clear already, or nowhere.
std::optional<ScreenCorner> CornerClearOf(const ScreenArea& match, const ScreenArea& dialog, const ScreenArea& screen);

}  // namespace vexa

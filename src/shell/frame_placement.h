// Where the frame stood and in which state, kept in section "Frame Size" of the settings file.
#pragma once

#include <cstdint>
#include <span>

#include "base/config_store.h"

namespace vexa {

// In screen pixels.
struct ScreenRect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const ScreenRect&) const = default;
};

// The numbers that the settings file has for them.
enum class FrameState : std::int32_t { Normal = 1, Minimised = 2, Maximised = 3 };

struct FramePlacement {
    ScreenRect normal;  // of the frame when it is neither minimised nor maximised
    FrameState state = FrameState::Normal;

    // The frame has been sized or moved; what a minimised or maximised one measures is not kept.
    void noteSize(FrameState now, const ScreenRect& rectangle);
    void noteMove(const ScreenRect& rectangle) { noteSize(state, rectangle); }

    bool operator==(const FramePlacement&) const = default;
};

// The placement to begin with. The state is the last one when the user wants the size restored, else the one that the
// program was started with. Without a usable rectangle in the settings the frame is normal, where it is now.
FramePlacement LoadFramePlacement(const ConfigStore& store, bool restoreSize, FrameState startState,
                                  const ScreenRect& current);
void SaveFramePlacement(ConfigStore& store, const FramePlacement& placement);

// Screens come and go between two sessions: the rectangle itself while enough of its title bar to take hold of lies on
// a screen, else moved, and if it must be made smaller, into the screen that is nearest. The rectangle as it is when
// there is no screen.
ScreenRect KeptOnScreen(const ScreenRect& rectangle, std::span<const ScreenRect> workAreas);

}  // namespace vexa

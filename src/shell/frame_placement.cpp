#include "shell/frame_placement.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr const char* kSection = "Frame Size";
// How much of the title bar must be there to be dragged, in pixels.
constexpr std::int64_t kGripWidth = 48;
constexpr std::int64_t kGripHeight = 16;

FrameState StateOf(std::int32_t number) {
    const bool isState = number >= 1 && number <= 3;
    return isState ? static_cast<FrameState>(number) : FrameState::Normal;
}

// The length that two stretches have in common; below 0 the distance between them. Sums are made where the numbers of a
// damaged settings file cannot overflow.
std::int64_t Common(std::int64_t a, std::int64_t lengthA, std::int64_t b, std::int64_t lengthB) {
    return std::min(a + lengthA, b + lengthB) - std::max(a, b);
}

bool CanBeGripped(const ScreenRect& rectangle, const ScreenRect& area) {
    return Common(rectangle.x, rectangle.width, area.x, area.width) >= kGripWidth && rectangle.y >= area.y &&
           Common(rectangle.y, rectangle.height, area.y, area.height) >= kGripHeight;
}

std::int64_t Distance(const ScreenRect& rectangle, const ScreenRect& area) {
    const std::int64_t across = -Common(rectangle.x, rectangle.width, area.x, area.width);
    const std::int64_t down = -Common(rectangle.y, rectangle.height, area.y, area.height);
    return std::max<std::int64_t>(across, 0) + std::max<std::int64_t>(down, 0);
}

ScreenRect MovedInto(const ScreenRect& rectangle, const ScreenRect& area) {
    const std::int32_t width = std::min(rectangle.width, area.width);
    const std::int32_t height = std::min(rectangle.height, area.height);
    return {std::clamp(rectangle.x, area.x, area.x + (area.width - width)),
            std::clamp(rectangle.y, area.y, area.y + (area.height - height)), width, height};
}

}  // namespace

void FramePlacement::noteSize(FrameState now, const ScreenRect& rectangle) {
    state = now;
    if (state == FrameState::Normal) normal = rectangle;
}

FramePlacement LoadFramePlacement(const ConfigStore& store, bool restoreSize, FrameState startState,
                                  const ScreenRect& current) {
    const auto number = [&](const char* key) { return store.ReadInt(kSection, key, 0); };
    const ScreenRect kept{number("x"), number("y"), number("cx"), number("cy")};
    const bool isUsable = kept.x != 0 && kept.y != 0 && kept.width > 0 && kept.height > 0;
    if (!isUsable) return {current, FrameState::Normal};
    return {kept, restoreSize ? StateOf(store.ReadInt(kSection, "state", 1)) : startState};
}

void SaveFramePlacement(ConfigStore& store, const FramePlacement& placement) {
    store.WriteInt(kSection, "x", placement.normal.x);
    store.WriteInt(kSection, "y", placement.normal.y);
    store.WriteInt(kSection, "cx", placement.normal.width);
    store.WriteInt(kSection, "cy", placement.normal.height);
    store.WriteInt(kSection, "state", static_cast<std::int32_t>(placement.state));
}

ScreenRect KeptOnScreen(const ScreenRect& rectangle, std::span<const ScreenRect> workAreas) {
    const auto canBeGripped = [&](const ScreenRect& area) { return CanBeGripped(rectangle, area); };
    if (workAreas.empty() || std::ranges::any_of(workAreas, canBeGripped)) return rectangle;
    const auto distance = [&](const ScreenRect& area) { return Distance(rectangle, area); };
    return MovedInto(rectangle, *std::ranges::min_element(workAreas, {}, distance));
}

}  // namespace vexa

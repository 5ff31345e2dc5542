#include "ui/help/help_window_placement.h"

#include <algorithm>
#include <vector>

#include "framework/dpi.h"
#include "framework/screen.h"
#include "shell/frame_placement.h"

namespace vexa {
namespace {

constexpr const char* kSection = "Help Window";
constexpr ScreenRect kFirst{80, 60, 760, 560};  // at the normal resolution; shows the manual's widest picture

RECT RectOf(const ScreenRect& area) {
    return {area.x, area.y, area.x + area.width, area.y + area.height};
}

ScreenRect ScreenRectOf(const RECT& area) {
    return {static_cast<std::int32_t>(area.left), static_cast<std::int32_t>(area.top),
            static_cast<std::int32_t>(area.right - area.left), static_cast<std::int32_t>(area.bottom - area.top)};
}

ScreenRect RoomNear(const ScreenRect& area) {
    return ScreenRectOf(WorkAreaNear(RectOf(area)));
}

ScreenRect FirstArea(int dpi) {
    const ScreenRect room = RoomNear(kFirst);
    return {kFirst.x, kFirst.y, std::min(Scaled(kFirst.width, dpi), room.width - 2 * kFirst.x),
            std::min(Scaled(kFirst.height, dpi), room.height - 2 * kFirst.y)};
}

}  // namespace

RECT LoadHelpWindowPlacement(const ConfigStore& store, int dpi) {
    const auto number = [&store](const char* key, std::int32_t fallback) {
        return store.ReadInt(kSection, key, fallback);
    };
    const ScreenRect first = FirstArea(dpi);
    ScreenRect area{number("x", first.x), number("y", first.y), number("cx", first.width), number("cy", first.height)};
    if (area.width <= 0 || area.height <= 0) area = first;
    const ScreenRect areas[] = {RoomNear(area)};
    return RectOf(KeptOnScreen(area, areas));
}

void SaveHelpWindowPlacement(ConfigStore& store, HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    if (!GetWindowPlacement(window, &placement)) return;
    const ScreenRect area = ScreenRectOf(placement.rcNormalPosition);
    const ConfigStore::Batch batch(store);
    store.WriteInt(kSection, "x", area.x);
    store.WriteInt(kSection, "y", area.y);
    store.WriteInt(kSection, "cx", area.width);
    store.WriteInt(kSection, "cy", area.height);
}

}  // namespace vexa

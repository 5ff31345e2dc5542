#include "ui/help/help_window_place.h"

#include <algorithm>
#include <vector>

#include "framework/dpi.h"
#include "framework/screen.h"
#include "shell/frame_placement.h"

namespace vexa {
namespace {

constexpr const char* kSection = "Help Window";
constexpr ScreenRect kFirst{80, 60, 760, 560};  // at the normal resolution; shows the manual's widest picture

RECT RectOf(const ScreenRect& place) {
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

ScreenRect ScreenRectOf(const RECT& area) {
    return {static_cast<std::int32_t>(area.left), static_cast<std::int32_t>(area.top),
            static_cast<std::int32_t>(area.right - area.left), static_cast<std::int32_t>(area.bottom - area.top)};
}

ScreenRect RoomNear(const ScreenRect& place) {
    return ScreenRectOf(WorkAreaNear(RectOf(place)));
}

ScreenRect FirstPlace(int dpi) {
    const ScreenRect room = RoomNear(kFirst);
    return {kFirst.x, kFirst.y, std::min(Scaled(kFirst.width, dpi), room.width - 2 * kFirst.x),
            std::min(Scaled(kFirst.height, dpi), room.height - 2 * kFirst.y)};
}

}  // namespace

RECT LoadHelpWindowPlace(const ConfigStore& store, int dpi) {
    const auto number = [&store](const char* key, std::int32_t fallback) {
        return store.ReadInt(kSection, key, fallback);
    };
    const ScreenRect first = FirstPlace(dpi);
    ScreenRect place{number("x", first.x), number("y", first.y), number("cx", first.width), number("cy", first.height)};
    if (place.width <= 0 || place.height <= 0) place = first;
    const ScreenRect areas[] = {RoomNear(place)};
    return RectOf(KeptOnScreen(place, areas));
}

void SaveHelpWindowPlace(ConfigStore& store, HWND window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    if (!GetWindowPlacement(window, &placement)) return;
    const ScreenRect place = ScreenRectOf(placement.rcNormalPosition);
    const ConfigStore::Batch batch(store);
    store.WriteInt(kSection, "x", place.x);
    store.WriteInt(kSection, "y", place.y);
    store.WriteInt(kSection, "cx", place.width);
    store.WriteInt(kSection, "cy", place.height);
}

}  // namespace vexa

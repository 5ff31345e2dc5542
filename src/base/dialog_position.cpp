#include "base/dialog_position.h"

#include <algorithm>
#include <string>

namespace vexa {

namespace {

std::string SectionOf(int dialog) {
    return "Dialog" + std::to_string(dialog);
}

// The file may hold any offset, so the sum is made where it cannot overflow.
std::int32_t Placed(std::int32_t owner, std::int32_t offset) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{owner} + offset, 0, INT32_MAX));
}

std::int32_t Offset(std::int32_t owner, std::int32_t corner) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{corner} - owner, INT32_MIN, INT32_MAX));
}

}  // namespace

std::optional<ScreenPoint> RestoreDialogPosition(const ConfigStore& store, int dialog, ScreenPoint owner) {
    const std::string section = SectionOf(dialog);
    const ScreenPoint offset{store.ReadInt(section, "XPos", 0), store.ReadInt(section, "YPos", 0)};
    if (offset.x == 0 || offset.y == 0) return std::nullopt;
    return ScreenPoint{Placed(owner.x, offset.x), Placed(owner.y, offset.y)};
}

void SaveDialogPosition(ConfigStore& store, int dialog, ScreenPoint owner, ScreenPoint corner) {
    const std::string section = SectionOf(dialog);
    const ConfigStore::Batch batch(store);
    store.WriteInt(section, "XPos", Offset(owner.x, corner.x));
    store.WriteInt(section, "YPos", Offset(owner.y, corner.y));
}

}  // namespace vexa

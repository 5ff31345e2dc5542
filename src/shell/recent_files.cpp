#include "shell/recent_files.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr const char* kSection = "History";
constexpr const char* kSlotKey = "MenuIndex";
constexpr std::size_t kPathSize = 256;

std::string KeyOf(std::size_t slot) {
    return "MenuFile:" + std::to_string(slot);
}

std::size_t Next(std::size_t slot) {
    return (slot + 1) % RecentFiles::kSlots;
}

CommandId CommandOf(std::size_t slot) {
    return CommandId(static_cast<std::uint16_t>(static_cast<std::size_t>(CommandId::FirstRecentFile) + slot));
}

std::string MenuText(const std::string& path) {
    std::string text;
    for (const char c : path)
        text.append(c == '&' ? 2 : 1, c);
    return text;
}

}  // namespace

void RecentFiles::LoadRecentFiles(const ConfigStore& store, bool restoreFiles) {
    shown_.clear();
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        paths_[slot] = store.ReadString(kSection, KeyOf(slot), "", kPathSize);
        if (restoreFiles && !paths_[slot].empty()) shown_.push_back(slot);
    }
    slot_ = store.ReadInt(kSection, kSlotKey, 0) == 1 ? 1 : 0;
}

// Begins with the slot that comes next, so that the older file is the first of the next session's to be replaced.
void RecentFiles::SaveRecentFiles(ConfigStore& store) {
    for (const std::string& path : paths_) {
        store.WriteString(kSection, KeyOf(slot_), path);
        slot_ = Next(slot_);
        store.WriteInt(kSection, kSlotKey, static_cast<std::int32_t>(slot_));
    }
}

void RecentFiles::RecordRecentFile(const std::string& path) {
    const auto isSame = [&](const std::string& known) { return EqualIgnoringCase(known, path); };
    if (std::ranges::any_of(paths_, isSame)) return;
    const bool otherIsFree = !paths_[slot_].empty() && paths_[Next(slot_)].empty();
    if (otherIsFree) slot_ = Next(slot_);
    paths_[slot_] = path;
    if (std::ranges::find(shown_, slot_) == shown_.end()) shown_.push_back(slot_);
    slot_ = Next(slot_);
}

std::vector<RecentFileRow> RecentFiles::menuRows() const {
    std::vector<RecentFileRow> rows;
    for (const std::size_t slot : shown_)
        rows.push_back({CommandOf(slot), MenuText(paths_[slot])});
    return rows;
}

const std::string& RecentFiles::path(CommandId id) const {
    static const std::string none;
    for (std::size_t slot = 0; slot < kSlots; ++slot)
        if (CommandOf(slot) == id) return paths_[slot];
    return none;
}

}  // namespace vexa

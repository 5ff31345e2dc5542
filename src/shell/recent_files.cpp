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

void RecentFiles::LoadRecentFiles(const ConfigStore& store, bool restoreFiles, bool isLong) {
    shown_.clear();
    paths_ = std::vector<std::string>(isLong ? kLongest : kSlots);
    std::size_t index = 0;
    for (std::size_t slot = 0; slot < paths_.size(); ++slot) {
        paths_[index] = store.ReadString(kSection, KeyOf(slot), "", kPathSize);
        const bool leavesGap = isLong && paths_[index].empty();
        if (!leavesGap) ++index;
    }
    for (std::size_t slot = 0; slot < paths_.size(); ++slot) {
        if (restoreFiles && !paths_[slot].empty()) shown_.push_back(slot);
    }
    slot_ = !isLong && store.ReadInt(kSection, kSlotKey, 0) == 1 ? 1 : 0;
}

// Begins with the slot that comes next, so that the older file is the first of the next session's to be replaced.
void RecentFiles::SaveRecentFiles(ConfigStore& store) {
    for (const std::string& path : paths_) {
        store.WriteString(kSection, KeyOf(slot_), path);
        slot_ = next(slot_);
    }
    store.WriteInt(kSection, kSlotKey, static_cast<std::int32_t>(slot_));
}

void RecentFiles::RecordRecentFile(const std::string& path) {
    if (paths_.size() == kSlots) {
        recordInSlot(path);
    } else {
        recordFirst(path);
    }
}

void RecentFiles::recordInSlot(const std::string& path) {
    const auto isSame = [&](const std::string& known) { return EqualIgnoringCase(known, path); };
    if (std::ranges::any_of(paths_, isSame)) return;
    const bool otherIsFree = !paths_[slot_].empty() && paths_[next(slot_)].empty();
    if (otherIsFree) slot_ = next(slot_);
    paths_[slot_] = path;
    if (std::ranges::find(shown_, slot_) == shown_.end()) shown_.push_back(slot_);
    slot_ = next(slot_);
}

// The files before its former place, or all, move one down.
void RecentFiles::recordFirst(const std::string& path) {
    std::size_t index = 0;
    while (index < kLongest - 1 && !paths_[index].empty() && !EqualIgnoringCase(paths_[index], path))
        ++index;
    if (index >= shown_.size()) shown_.push_back(shown_.size());
    for (; index > 0; --index)
        paths_[index].swap(paths_[index - 1]);
    paths_[0] = path;
}

std::vector<RecentFileRow> RecentFiles::menuRows() const {
    std::vector<RecentFileRow> rows;
    for (const std::size_t slot : shown_)
        rows.push_back({CommandOf(slot), MenuText(paths_[slot])});
    return rows;
}

const std::string& RecentFiles::path(CommandId id) const {
    static const std::string none;
    for (std::size_t slot = 0; slot < paths_.size(); ++slot)
        if (CommandOf(slot) == id) return paths_[slot];
    return none;
}

}  // namespace vexa

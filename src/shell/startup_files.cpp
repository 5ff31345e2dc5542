#include "shell/startup_files.h"

#include <algorithm>
#include <utility>

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr const char* kSection = "History";
constexpr std::size_t kValueSize = 256;

std::string KeyOf(std::size_t slot) {
    return "StartupFile:" + std::to_string(slot);
}

}  // namespace

// The slot moves on also when the file had one already, so a file that is closed twice can cost another its place; this
// is how the ring is meant to turn.
void StartupFiles::RecordStartupFile(const std::string& path, std::int32_t line) {
    const auto isSame = [&](const std::string& known) { return EqualIgnoringCase(known, path); };
    const auto known = std::ranges::find_if(paths_, isSame);
    const std::size_t slot = known == paths_.end() ? slot_ : static_cast<std::size_t>(known - paths_.begin());
    paths_[slot] = path;
    store_.WriteString(kSection, KeyOf(slot), path + " " + std::to_string(line));
    slot_ = (slot_ + 1) % kSlots;
}

void StartupFiles::keep() {
    takeBack();
    Kept kept{{}, paths_, slot_};
    for (std::size_t slot = 0; slot < kSlots; ++slot)
        kept.values[slot] = store_.ReadString(kSection, KeyOf(slot), "", kValueSize);
    kept_ = std::move(kept);
}

void StartupFiles::takeBack() {
    if (!kept_) return;
    const ConfigStore::Batch batch(store_);
    for (std::size_t slot = 0; slot < kSlots; ++slot)
        store_.WriteString(kSection, KeyOf(slot), kept_->values[slot]);
    paths_ = kept_->paths;
    slot_ = kept_->slot;
    kept_.reset();
}

void StartupFiles::RestoreStartupFiles(bool restoreFiles, const Open& open) {
    slot_ = 0;
    if (!restoreFiles) return;
    for (std::size_t slot = kSlots; slot-- > 0;) {
        const std::string value = store_.ReadString(kSection, KeyOf(slot), "", kValueSize);
        if (value.empty()) continue;
        const std::size_t blank = std::min(value.rfind(' '), value.size());
        open(value.substr(0, blank), LeadingInteger(std::string_view(value).substr(blank)));
        store_.WriteString(kSection, KeyOf(slot), "");
        paths_[slot].clear();
    }
}

}  // namespace vexa

// The files last closed, as the File menu offers them, kept in section "History" of the settings file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/config_store.h"
#include "shell/command_id.h"

namespace vexa {

// An entry of the File menu, and the path as a menu shows it ("&" doubled).
struct RecentFileRow {
    CommandId id{};
    std::string text;

    bool operator==(const RecentFileRow&) const = default;
};

class RecentFiles {
  public:
    static constexpr std::size_t kSlots = 2;
    static constexpr std::size_t kLongest = 16;  // files in a long list

    // Reads the files that the settings remember; they are in the menu only when the user wants files restored. Two are
    // remembered, or with a long list sixteen, of which the one closed last is the first.
    void LoadRecentFiles(const ConfigStore& store, bool restoreFiles, bool isLong = false);
    void SaveRecentFiles(ConfigStore& store);

    // Notes a file whose window has been closed: it takes a free place, or that of the older one. Nothing changes for a
    // file that is remembered already, letter case ignored; in a long list it becomes the first.
    void RecordRecentFile(const std::string& path);

    // What stands before "Exit" in the File menu, in order; a separator follows when it is not empty.
    std::vector<RecentFileRow> menuRows() const;
    // The path of a menu entry; empty for none.
    const std::string& path(CommandId id) const;

  private:
    std::size_t next(std::size_t slot) const { return (slot + 1) % paths_.size(); }
    void recordInSlot(const std::string& path);
    void recordFirst(const std::string& path);

    std::vector<std::string> paths_ = std::vector<std::string>(kSlots);
    std::size_t slot_ = 0;            // where the next file goes; 0 in a long list
    std::vector<std::size_t> shown_;  // the slots in the menu, in its order
};

}  // namespace vexa

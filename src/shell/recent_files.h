// The two files last closed, as the File menu offers them, kept in section "History" of the settings file.
#pragma once

#include <array>
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

    // Reads the files that the settings remember; they are in the menu only when the user wants files restored.
    void LoadRecentFiles(const ConfigStore& store, bool restoreFiles);
    void SaveRecentFiles(ConfigStore& store);

    // Notes a file whose window has been closed: it takes a free place, or that of the older one. Nothing changes for a
    // file that is remembered already, letter case ignored.
    void RecordRecentFile(const std::string& path);

    // What stands before "Exit" in the File menu, in order; a separator follows when it is not empty.
    std::vector<RecentFileRow> menuRows() const;
    // The path behind a menu entry; empty for none.
    const std::string& path(CommandId id) const;

  private:
    std::array<std::string, kSlots> paths_;
    std::size_t slot_ = 0;            // where the next file goes
    std::vector<std::size_t> shown_;  // the slots in the menu, in its order
};

}  // namespace vexa

// Goes through the files of a folder, and of the folders in it, a little at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/platform.h"
#include "search/files/file_patterns.h"

namespace vexa {

// The files of a folder come before those of the folders in it, all in the order of their names; what is hidden is
// passed over. A folder that links lead to again, such as one above, is entered once.
class FolderWalk {
  public:
    enum class Step { File, Folder, End };

    FolderWalk(const std::string& folder, std::string_view patterns, bool subfolders)
        : patterns_(patterns), subfolders_(subfolders), folders_{folder} {}

    // Goes to the next file, or reads a part of a folder.
    Step step();
    // The full path of the file that step() has gone to.
    const std::string& file() const { return file_; }
    // Folders that could not be read, so far.
    std::int32_t unreadable() const { return unreadable_; }

  private:
    void enterNext();
    void readOn();
    bool isNew(const platform::DirectoryIdentity& identity);

    const FilePatterns patterns_;
    const bool subfolders_;
    std::vector<std::string> folders_;  // still to be read; the next is the last
    std::string prefix_;                // of the names in the folder that is gone through, "\" at the end
    std::optional<platform::DirectoryReader> reader_;   // of that folder, until all of it is read
    std::vector<std::string> files_;                    // the names there, a heap as soon as all are read
    std::ptrdiff_t firstSubfolder_ = 0;                 // index in folders_ of those that were found there
    std::vector<platform::DirectoryIdentity> entered_;  // sorted
    std::string file_;
    std::int32_t unreadable_ = 0;
};

}  // namespace vexa

// Which recovery files belong to which run of the editor, and whether that still runs.
//
// A run has a number: its files are "unsaved-NUMBER-1.vxr" and so on in the directory of backups, with ".~0" after
// that while they are being written. It holds the file "unsaved-NUMBER.run" open for as long as it lives, however it
// ends, so that no other takes its files; on a share that holds for editors on other machines, too.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/file.h"

namespace vexa {

// The directory is given without "\" at its end, and untouched until there is something to keep or to take.
class RecoveryNames {
  public:
    explicit RecoveryNames(std::string directory) : directory_(std::move(directory)) {}
    // The files that are still there are left to a later run.
    ~RecoveryNames();
    RecoveryNames(const RecoveryNames&) = delete;
    RecoveryNames& operator=(const RecoveryNames&) = delete;

    const std::string& directory() const { return directory_; }
    // The full path of another file; empty when the directory cannot be written.
    std::string next();
    // Makes the files of the runs that have ended files of this one. What cannot be taken stays where it is.
    std::vector<std::string> takeLeft();

  private:
    bool begin();
    void takeFilesOf(const std::string& stem, std::vector<std::string>& taken);

    const std::string directory_;
    std::string stem_;  // what the names of this run begin with; empty before the first
    File lock_;
    int last_ = 0;
};

}  // namespace vexa

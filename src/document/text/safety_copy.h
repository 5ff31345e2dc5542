// The old contents of a file while it is being written over.
//
// They are copied under a name that nobody looks for and brought to the disk; only then does the copy get the name by
// which it is found after an interruption. So what bears such a name is whole. It lies beside the file, as
// "NAME.EXT.vx0" to "NAME.EXT.vx9", none of which is ever written over; where that cannot be, in the directory of
// backups.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/file.h"

namespace vexa {

enum class CopyFault { None, NoNewFile, NameTooLong, AllNamesTaken, NoRoom, Unreadable };

class SafetyCopy {
  public:
    // Copies an open file from its beginning. When that fails nothing of the copy is left.
    SafetyCopy(const std::string& path, File& file);
    // Holds the contents in memory alone, for a user who saves without a copy: what is written can still be put back,
    // but is lost with the program.
    static SafetyCopy inMemory(File& file);

    // Why there is no copy: the reason that speaks against one beside the file. Unreadable is the file's own fault.
    CopyFault fault() const { return fault_; }
    const std::string& name() const { return name_; }
    std::uint64_t checksum() const { return checksum_; }

    // Gives a file the old contents again; false when that could not be done, and then the copy must stay.
    bool putBack(File& target) const;
    // False when the copy is still there.
    bool remove() const;

  private:
    SafetyCopy() = default;
    CopyFault copyTo(const std::string& stem, File& file);
    static std::string temporaryName(const std::string& stem, File& file);
    CopyFault copyAs(const std::string& temporary, File& file);

    CopyFault fault_ = CopyFault::None;
    std::string name_;  // empty for contents in memory
    std::string contents_;
    std::uint64_t checksum_ = 0;
};

// The safety copies that interrupted saves have left for a file, the latest first.
std::vector<std::string> LeftSafetyCopies(const std::string& path);
// A free name beside a left copy by which it is not found any more; empty when there is none.
std::string KeptCopyName(const std::string& copy);

}  // namespace vexa

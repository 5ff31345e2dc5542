// What is done with recovery files on the disk: one thing after the other, in the order in which it was asked for, in
// the background. A disk may take as long as it likes, and nobody waits for it who does not want to.
#pragma once

#include <cstdint>
#include <list>
#include <optional>
#include <string>

#include "base/platform.h"
#include "document/text/text_document.h"
#include "shell/unsaved/recovery_copy.h"
#include "shell/unsaved/recovery_names.h"

namespace vexa {

// A file to be written in one step, over an older one if there is one; without parts, to be removed.
struct RecoveryOrder {
    std::string path;  // empty for a new file, which gets its name when it is written
    RecoveryParts parts;
    const TextDocument* document = nullptr;  // of which this is the text; none when nobody wants the file any more
    std::uint32_t revision = 0;              // that the file will have
    bool isDone = false;                     // all is on the disk
};

class RecoveryDisk {
  public:
    // The names must outlive this, and are used by nobody else while this is busy.
    explicit RecoveryDisk(RecoveryNames& names) : names_(names) {}
    // Waits for the end of all orders.
    ~RecoveryDisk();
    RecoveryDisk(const RecoveryDisk&) = delete;
    RecoveryDisk& operator=(const RecoveryDisk&) = delete;

    bool isBusy() const { return !orders_.empty(); }
    void write(RecoveryOrder order);
    // Without memory for the order it is done at once.
    void remove(const std::string& path);
    // Nobody wants the document's file any more: what is being written of it is removed when it is written.
    void disown(const TextDocument& document);
    // One that has been carried out and that somebody wants; begins the next.
    std::optional<RecoveryOrder> takeEnded();

  private:
    void begin();
    static void CarryOut(void* disk) noexcept;
    bool carryOut(RecoveryOrder& order);

    RecoveryNames& names_;
    std::list<RecoveryOrder> orders_;
    RecoveryOrder* begun_ = nullptr;  // the first of them, which the work has alone
    platform::BackgroundWork work_{&CarryOut, this};
};

}  // namespace vexa

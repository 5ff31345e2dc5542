// Keeps the text of every document with unsaved changes in a recovery file, for the next start should this run of the
// editor not come to its end.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/notices.h"
#include "shell/auto_backup.h"
#include "shell/unsaved/recovery_copy.h"
#include "shell/unsaved/recovery_disk.h"
#include "shell/unsaved/recovery_names.h"

namespace vexa {

// What is kept is at most 5 seconds old: a file is written after a pause of the user, and else when the oldest change
// that is not in it has waited long enough. It is removed when its document is saved, closed, or unmodified again.
class RecoveryKeeper {
  public:
    using Clock = std::uint32_t (*)();  // milliseconds; may begin again at 0

    static constexpr std::uint32_t kPause = 800;
    static constexpr std::uint32_t kLongestWait = 3000;

    // The directory is given without "\" at its end.
    RecoveryKeeper(const BackupFrame& frame, std::string directory, Notices& notices, Clock clock)
        : frame_(frame), names_(std::move(directory)), notices_(notices), clock_(clock) {}

    enum class Work {
        None,  // until something changes, or time has passed
        Wait,  // a few milliseconds
        More
    };
    // Does a little; called while nothing else is to be done, and several times a second otherwise. The user is told
    // once of a directory that cannot be written.
    Work work();
    // Brings all that is not saved into its files at once: the editor may be ended any time from now on.
    void writeAll();
    // The document is going to be closed for good.
    void forget(const TextDocument& document);
    // The recovery files of runs that have ended; they are this run's from now on.
    std::vector<std::string> takeLeft();
    // The document has just been made of one of them.
    void adopt(TextDocument& document, const std::string& file);

  private:
    struct Kept {
        TextDocument* document = nullptr;
        std::string file;               // empty before the first
        std::uint32_t written = 0;      // the document's revision that the file has
        std::uint32_t seen = 0;         // the one last seen
        std::uint32_t firstChange = 0;  // when it was first changed after what is written
        std::uint32_t lastChange = 0;

        bool isBehind() const { return seen != written; }
    };

    void look();
    void note(TextDocument& document);
    Kept& keptOf(TextDocument& document);
    Kept* find(const TextDocument& document);
    bool isDue(const Kept& kept) const;
    bool isKeeping() const { return copy_ || written_; }
    void begin(Kept& kept) { copy_ = std::make_unique<RecoveryCopy>(*kept.document); }
    Work goOn();
    void handOver();
    void takeEnded();
    void finish(const RecoveryOrder& order);
    void fail(const TextDocument& document);
    void waitUntilKept();

    const BackupFrame& frame_;
    RecoveryNames names_;
    Notices& notices_;
    const Clock clock_;
    std::vector<Kept> kept_;
    std::unique_ptr<RecoveryCopy> copy_;     // of one document at a time,
    const TextDocument* written_ = nullptr;  // whose copy the disk has then
    bool hasToldFailure_ = false;
    RecoveryDisk disk_{names_};
};

}  // namespace vexa

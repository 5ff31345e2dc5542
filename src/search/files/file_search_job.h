// A search in files that goes on while the user works, and brings what it finds into the list.
#pragma once

#include <cstdint>
#include <optional>

#include "search/files/hit_list.h"

namespace vexa {

// One search at a time: a new one ends the one before.
class FileSearchJob {
  public:
    static constexpr std::uint32_t kSlice = 8;       // milliseconds of work without a look at what the user does
    static constexpr std::uint32_t kInterval = 100;  // milliseconds from one look of the list's window to the next

    FileSearchJob(HitList& list, SearchedFiles& files, Notices& notices)
        : list_(list), files_(files), notices_(notices) {}

    void start(const FileSearchRequest& request);
    // Works for a slice, less when the first lines are found; false when there is nothing to do.
    bool work();
    void stop();
    bool isRunning() const { return search_.has_value(); }

  private:
    void finish(TextId outcome);
    void showNewRows(std::uint32_t now);

    HitList& list_;
    SearchedFiles& files_;
    Notices& notices_;
    std::optional<FileSearch> search_;
    std::int32_t shownHits_ = 0;
    std::uint32_t shownAt_ = 0;  // milliseconds
};

}  // namespace vexa

// The numbered bookmarks of a document.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "base/units.h"

namespace vexa {

// Result of a bookmark operation.
enum class BookmarkResult : std::int32_t { Done = 0, BadNumber = 1, NotSet = 2 };

// Each remembers the index of a line and keeps it whatever is done to the text: after lines have come or gone above, it
// names the line that then has that index.
class Bookmarks {
  public:
    static constexpr std::int32_t kCount = 10;  // numbered from 0

    static bool hasNumber(std::int32_t n) { return n >= 0 && n < kCount; }
    BookmarkResult drop(std::int32_t n, LineIndex line) {
        if (!hasNumber(n)) return BookmarkResult::BadNumber;
        lines_[static_cast<std::size_t>(n)] = line;
        return BookmarkResult::Done;
    }
    // None for a bookmark that is not set, or a number that is none.
    std::optional<LineIndex> line(std::int32_t n) const {
        return hasNumber(n) ? lines_[static_cast<std::size_t>(n)] : std::nullopt;
    }

  private:
    std::array<std::optional<LineIndex>, kCount> lines_;
};

}  // namespace vexa

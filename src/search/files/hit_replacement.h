// Replaces what a search in files has found, in documents that are opened for it. Nothing is written.
#pragma once

#include <cstdint>
#include <string>

#include "search/files/hit_list.h"

namespace vexa {

struct HitRows {
    std::size_t first = 0;
    std::size_t count = 0;
};

class HitReplacement {
  public:
    // So many windows can be looked through, and saved, by their user.
    static constexpr std::size_t kMostFiles = 100;

    HitReplacement(HitList& list, SearchedFiles& files) : list_(list), files_(files) {}

    // Replaces every match in the lines of those rows by the text, which may have the escapes of a replacement; in each
    // document one undo group. A line whose first match is no longer the one that was found is passed over. Nothing is
    // done where the rows are about more than kMostFiles files. What the user is to be told.
    std::string replace(const HitRows& rows, const std::string& text);

  private:
    std::size_t endOfFile(std::size_t row, std::size_t end) const;
    std::size_t filesIn(const HitRows& rows) const;
    std::size_t replaceInFile(std::size_t row, std::size_t end, const SearchOptions& options);
    bool replaceInLine(EditView& view, LineSearch& search, const HitList::Hit& hit);

    HitList& list_;
    SearchedFiles& files_;
    std::int32_t replacements_ = 0;
    std::int32_t passedOver_ = 0;
    std::int32_t changedFiles_ = 0;
};

}  // namespace vexa

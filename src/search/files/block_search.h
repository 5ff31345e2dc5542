// Finds the lines of a block of text that have a match, looking at the block as a whole first.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "regexp/candidate_search.h"
#include "regexp/plain_search.h"
#include "search/line_search.h"

namespace vexa {

// A line without its end, and the first match in it.
struct FoundLine {
    char* begin;
    char* end;
    char* next;  // where the line after it begins
    LineMatch match;

    std::string_view text() const { return {begin, static_cast<std::size_t>(end - begin)}; }
};

class BlockSearch {
  public:
    // An expression that does not compile is found nowhere.
    explicit BlockSearch(const SearchOptions& options);

    // The first such line of a text that begins with a line. Its bytes, and the one at the end, are changed meanwhile
    // and have their values again afterwards.
    std::optional<FoundLine> find(char* begin, char* end);
    LineSearch& lines() { return lines_; }

  private:
    const char* findCandidate(const char* begin, const char* end) const;

    LineSearch lines_;
    PlainSearch plain_;
    std::unique_ptr<const CandidateSearch> candidates_;  // of a regular expression
};

}  // namespace vexa

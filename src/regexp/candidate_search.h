// Finds in a text of many lines those that a regular expression may match, before the text is cut into lines.
#pragma once

#include <memory>

#include "regexp/letter_case.h"
#include "regexp/regexp.h"

namespace vexa {

namespace regexp {
struct Hints;
}

// May stop at lines without a match, but never passes one over that has one.
class CandidateSearch {
  public:
    // For a program of the compiler. Throws std::bad_alloc.
    CandidateSearch(const RegExp& program, LetterCase letterCase);
    ~CandidateSearch();

    // A character, or the end, of the first line from the start of a line on that may have a match; null when none may.
    // A NUL is at the end.
    const char* find(const char* begin, const char* end) const;

  private:
    const std::unique_ptr<const regexp::Hints> hints_;
};

}  // namespace vexa

// The text file that says more about quotes than a profile can. It stands beside the profile file, has the same name
// with the extension ".QUO", and is made of lines "NAME: VALUES" with blanks between the values; the last line of a
// name counts, but for "quote", and what is not understood is passed over.
//
//   escape: C                     C and the character after it open and close nothing
//   quote: OPEN [CLOSE] [lines] [raw] [behind CHARACTERS]
//                                 up to 8 of them, instead of the profile's string character; CLOSE is OPEN where it is
//                                 missing. "lines": goes over lines; "raw": the escape character is an ordinary one
//                                 inside; "behind": opens only after one of these characters or at the start of a
//                                 line, blanks aside
//   comment: OPEN CLOSE           instead of the profile's start and end
//   line comment: word [CHARACTERS]
//                                 the profile's line comment begins only after a blank or one of these
//   code in quotes: OPEN CLOSE    what stands between these is code again, in quotes with "lines" and without "raw"
//   text behind: OPEN             a word after OPEN begins a text, from the next line to the line of this word alone
//
//   code: OPEN CLOSE              only what stands between these two characters is code, all around is text; a letter
//                                 follows OPEN, or one of "/!?" and a letter
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "language/quote_rules.h"

namespace vexa {

inline constexpr std::string_view kQuoteFileSuffix = ".QUO";
// What a file has beyond this is not read, in bytes.
inline constexpr std::size_t kLargestQuoteFile = 4096;

// Takes any bytes.
QuoteRules ParseQuoteRules(std::string_view text);

// The default for a file that is not there or cannot be read.
QuoteRules ReadQuoteRules(const std::string& path);

}  // namespace vexa

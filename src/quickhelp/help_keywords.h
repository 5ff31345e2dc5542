// The keyword list inside a help file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "quickhelp/help_file_reader.h"

namespace vexa {

// As the lines of an index: each keyword, cut to 79 characters, and a line end.
struct KeywordLines {
    std::string text;
    std::int32_t count = 0;
};

// The most keywords that are kept, since an index gives their number in five digits; the rest of a longer list is left
// out.
inline constexpr std::int32_t kMostKeywords = 99'999;

// The keywords of the internal file at an offset, in its order. None when it does not hold as many as it says, which is
// tried with pages of 2048 bytes, whatever the file says, and then with the size that it gives.
std::optional<KeywordLines> ReadKeywords(HelpFileReader& reader, std::uint32_t offset);

}  // namespace vexa

// Reads what a program has printed into a file, in lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/callback.h"

namespace vexa {

// Characters of a line; the rest of a longer one is a further line.
inline constexpr std::size_t kCapturedLineLimit = 255;

// Hands each line to a function until that returns false. A line ends at CR LF or LF, and what follows a CR inside it
// is not part of it. A line in UTF-8 is handed over in the ANSI code page; all other bytes are as they are. The file is
// shared with programs that still write. False when it cannot be opened; after an error in the middle of the file, what
// was read before it counts.
bool ReadCapturedLines(const std::string& path, const Callback<bool(std::string_view)>& take);

}  // namespace vexa

// How much of a file one document takes, and how far the cursor goes in it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vexa {

// The given ones are deliberate: a load that meets one of them tells the user.
struct Limits {
    std::size_t lineRead = 299;            // characters read for one line, its line end counted
    std::int32_t lastLoadedLine = 90'000;  // index of the last line that one load keeps
    std::int32_t lastColumn = 300;         // the cursor goes no further right
};

// Of a line that is read whole, whatever its length.
inline constexpr std::size_t kAnyLength = SIZE_MAX / 2;

}  // namespace vexa

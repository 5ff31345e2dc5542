// How much of a file one document takes, and how far the cursor goes in it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vexa {

// As long as anything can be.
inline constexpr std::size_t kAnyLength = SIZE_MAX / 2;

// The given ones are deliberate: a load that meets one of them tells the user.
struct Limits {
    std::size_t lineRead = 299;            // characters read for one line, its line end counted
    std::int32_t lastLoadedLine = 90'000;  // index of the last line that one load keeps
    std::int32_t lastColumn = 300;         // the cursor goes no further right
    // Of a larger file, in bytes, nothing is loaded; one that is loaded whole must leave room for others.
    std::uint64_t wholeFile = 0;
    std::size_t colouredLength = kAnyLength;  // characters of a line in which syntax colouring knows tokens
    std::int32_t commentLines = INT32_MAX;    // lines that one look for comments goes through
};

// Those of long lines and large files. What colouring does at a key has a limit there, as a line or a text has none.
inline constexpr Limits kWideLimits = {kAnyLength, INT32_MAX - 1, (1 << 24) - 1, 512u << 20, 10'000, 50'000};

}  // namespace vexa

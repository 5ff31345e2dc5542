// Whether there is memory for what is to come, found out without taking the last of it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vexa {

// For so many bytes in pieces of that size. The user is not told of memory that has run out.
bool HasRoomFor(std::uint64_t bytes, std::size_t piece);

}  // namespace vexa

// The two ways of packing bytes in a help file. What is unpacked never exceeds the limit in bytes; damaged input gives
// what could be unpacked before the fault.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexa::topics {

std::string UnpackLz77(std::string_view packed, std::size_t limit);
// The same into a string whose memory is used again.
void UnpackLz77(std::string_view packed, std::size_t limit, std::string& out);
std::string UnpackRuns(std::string_view packed, std::size_t limit);

}  // namespace vexa::topics

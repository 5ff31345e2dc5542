// The numbers under which the program asks its own help file for topics; tools/help gives the topics these numbers. The
// topic of a command has the command's number.
#pragma once

#include <cstdint>

namespace vexa {

inline constexpr std::uint32_t kHelpOnKeys = 49153;
// To be added to the number of a dialog's resource.
inline constexpr std::uint32_t kHelpOnDialogs = 10000;

}  // namespace vexa

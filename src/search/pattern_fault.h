// Why a regular expression cannot be used.
#pragma once

#include <string>

namespace vexa {

// Empty for one that can.
std::string FaultOfPattern(const std::string& pattern);

}  // namespace vexa

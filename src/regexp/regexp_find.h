// Finds the leftmost match of a plan in a line.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace vexa::regexp {

struct Plan;

struct Match {
    const char* start;
    const char* end;
    // Starts and ends of the groups at 1 to 9 and 11 to 19; null for those that took no part.
    std::array<const char*, 20> saved;
};

// The leftmost match that begins at or after a position of the line. A NUL must follow the line; one inside ends it.
// None also after an error, which has then been reported.
std::optional<Match> FindMatch(const Plan& plan, std::string_view line, std::size_t from);

}  // namespace vexa::regexp

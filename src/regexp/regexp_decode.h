// Turns the bytes of a program into nodes with direct links.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "regexp/regexp_plan.h"

namespace vexa::regexp {

struct DecodedProgram {
    NodeIndex start;
    std::vector<PlanNode> nodes;  // in the order of the program, which only loops run against
};

// Survives any bytes: what is damaged becomes a Broken node that is found when execution gets there. Nodes that match
// the empty string and decide nothing are skipped over by the links. Throws std::bad_alloc.
DecodedProgram DecodeProgram(std::span<const std::uint8_t> program, LetterCase letterCase);

}  // namespace vexa::regexp

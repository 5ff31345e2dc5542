// What every match of a program must look like, so that most lines and most positions in a line need no matching.
#pragma once

#include <cstdint>

#include "regexp/plain_search.h"
#include "regexp/regexp_byte_set.h"
#include "regexp/regexp_filter.h"

namespace vexa::regexp {

struct Plan;

using NodeIndex = std::uint16_t;

// How the positions are found at which a match is tried.
enum class Start : std::uint8_t {
    Filtered,  // where the filter lets one pass
    Literal,   // where the leading literal is
    Loop       // where the leading loop can begin: a program that begins with a loop after at most one character
};

struct LeadingLoop {
    // The bits in the table.
    static constexpr Byte kFirst = 1;     // a match can begin with the character
    static constexpr Byte kRepeated = 2;  // the loop repeats it
    static constexpr Byte kNul = 4;

    NodeIndex node = 0;
    unsigned width = 0;   // characters before the loop
    bool direct = false;  // nothing before the loop needs the machine
    ByteTable table{};
};

struct Hints {
    Start start = Start::Filtered;
    PlainSearch required;  // the longest literal in every match, unless it is the leading one; may be empty
    PlainSearch leading;   // the literal with which every match begins
    LeadingLoop loop;
    // Start::Filtered: lets the positions pass where a match may begin. Start::Loop: those before which the loop may
    // have run to its end, with the loop's last character first.
    PositionFilter filter;
};

// What the hints are to be used on: one line, or a text of many, in which a line also ends before CR or LF. In the
// latter only `required`, `leading` and `filter` are of use.
enum class Subject : std::uint8_t { Line, Lines };

// For a program of the compiler, whose first sets are known. Throws std::bad_alloc.
Hints FindHints(const Plan& plan, Subject subject = Subject::Line);

}  // namespace vexa::regexp

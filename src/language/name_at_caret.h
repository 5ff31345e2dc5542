// Which file the text at the caret names.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/units.h"

namespace vexa {

struct NamedPlace {
    std::string name;
    std::int32_t line = 0;  // counted from 1; 0 when none is named

    bool operator==(const NamedPlace&) const = default;
};

// What the line may mean, the likeliest first; empty when there is no name. The file of an #include or #import
// directive is meant wherever in the line the caret is. Elsewhere it is the text in quotes or angle brackets around the
// caret, then the characters around it that a name can have. A ":12", ":12:3", "(12)" or "(12,3)" after a name is the
// line, and the caret may stand there too.
std::vector<NamedPlace> NamesAtCaret(std::string_view text, CharColumn column);

}  // namespace vexa

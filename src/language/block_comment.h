// What one line does to a block comment that spans lines.
#pragma once

#include <string_view>

#include "language/token_rules.h"

namespace vexa {

// Depends on the line's text alone, so that it need be found out once a line, wherever the line stands.
struct CommentEffect {
    bool opens = false;   // starting outside a block comment, the line ends inside one
    bool closes = false;  // starting inside a block comment, the line ends outside

    bool operator==(const CommentEffect&) const = default;
    // Whether the next line starts inside a comment.
    bool after(bool startsInside) const { return startsInside ? !closes : opens; }
};

CommentEffect CommentEffectOf(const TokenRules& rules, std::string_view line);

}  // namespace vexa

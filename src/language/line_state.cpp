#include "language/line_state.h"

#include "language/line_tokenizer.h"

namespace vexa {

LineState StateAfter(const TokenRules& rules, std::string_view line, LineState start) {
    line = TextBeforeNul(line);
    // Most lines leave what is outside as it is, which is found out faster than their tokens.
    if (start == LineState::Outside && !rules.mayOpen(line)) return start;
    LineTokenizer tokens(rules, line, start);
    while (tokens.NextToken().kind != TokenKind::EndOfLine) {
    }
    return tokens.endState();
}

LineState LineEffect::after(const TokenRules& rules, std::string_view line, LineState start) {
    if (!isCurrent) *this = {.isCurrent = true};
    if (const LineState end = known(start); end != LineState::Unknown) return end;
    if (start == LineState::Outside) return afterOutside = StateAfter(rules, line, start);
    inside = start;
    return afterInside = StateAfter(rules, line, start);
}

bool LineEffect::refresh(const TokenRules& rules, std::string_view line) {
    if (isCurrent) return false;
    const LineEffect old = *this;
    const bool asked = old.afterOutside != LineState::Unknown || old.inside != LineState::Unknown;
    *this = {.isCurrent = true};
    if (old.afterOutside != LineState::Unknown) after(rules, line, LineState::Outside);
    if (old.inside != LineState::Unknown) after(rules, line, old.inside);
    return !asked || afterOutside != old.afterOutside || afterInside != old.afterInside;
}

}  // namespace vexa

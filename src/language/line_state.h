// What a line starts or ends inside of, and what its text makes of that: comments and quotes can span lines.
#pragma once

#include <cstdint>
#include <string_view>

namespace vexa {

class TokenRules;

// Below FirstHereText a number says two things: what the line starts inside of, and how many quotes around that are
// interrupted by code (up to 3), times kNested.
enum class LineState : std::uint8_t {
    Outside,             // of everything; in a profile that tells code from text, in text
    Comment,             // between the profile's comment start and end
    Code,                // in a profile that tells code from text, in code
    FirstQuote,          // in the first of the rules' quotes; the numbers after it are the others
    FirstHereText = 64,  // in a text up to a line that is one word; the number stands for the word
    Unknown = 255
};
inline constexpr int kNested = 16;
inline constexpr int kHereTexts = 255 - 64;

// A state without the quotes around it.
constexpr LineState InnermostOf(LineState state) {
    return state < LineState::FirstHereText ? static_cast<LineState>(static_cast<int>(state) % kNested) : state;
}

// Another state inside of as many quotes, or of some more or less.
constexpr LineState NestedAs(LineState state, LineState innermost, int more = 0) {
    const int around = state < LineState::FirstHereText ? static_cast<int>(state) / kNested + more : 0;
    return static_cast<LineState>(around * kNested + static_cast<int>(innermost));
}

constexpr bool CanNest(LineState state) {
    return static_cast<int>(state) + kNested < static_cast<int>(LineState::FirstHereText);
}

// Whether a line in that state starts with the rest of a comment or of a quote.
constexpr bool GoesOn(LineState state) {
    const LineState innermost = InnermostOf(state);
    return innermost != LineState::Outside && innermost != LineState::Code;
}

// The state at the end of a line that starts in the given one.
LineState StateAfter(const TokenRules& rules, std::string_view line, LineState start);

// What is known of a line's text: where it ends for a start outside of everything, and for the one other start that was
// asked for last. So the text is read once for each, however often and wherever the line stands.
struct LineEffect {
    LineState afterOutside = LineState::Unknown;
    LineState inside = LineState::Unknown;
    LineState afterInside = LineState::Unknown;
    bool isCurrent = false;  // false: the text has changed since, and the rest is what the old text did

    // Unknown when it has to be found out.
    LineState known(LineState start) const {
        if (start == LineState::Outside) return isCurrent ? afterOutside : LineState::Unknown;
        return isCurrent && inside == start ? afterInside : LineState::Unknown;
    }
    LineState after(const TokenRules& rules, std::string_view line, LineState start);
    // Takes in a changed text. True when, as far as anybody has asked, it does something else than the old one, or
    // nobody has asked.
    bool refresh(const TokenRules& rules, std::string_view line);
};

}  // namespace vexa

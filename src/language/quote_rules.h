// What a profile's file cannot say about quotes and comments; a text file beside it can (see quote_file.h).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "language/line_state.h"

namespace vexa {

// A short text in place, so that rules are copied without allocation. What is longer is cut.
template <std::size_t limit>
class ShortText {
  public:
    ShortText() = default;
    explicit ShortText(std::string_view text) : length_(static_cast<std::uint8_t>(text.substr(0, limit).size())) {
        text.copy(text_, limit);
    }
    std::string_view view() const { return {text_, length_}; }
    bool isEmpty() const { return length_ == 0; }
    bool contains(char c) const { return view().find(c) != std::string_view::npos; }

  private:
    char text_[limit] = {};
    std::uint8_t length_ = 0;
};

struct Quote {
    ShortText<7> open;
    ShortText<7> close;
    ShortText<31> behind;    // opens only where the last character before it, blanks aside, is one of these
    bool isComment = false;  // what it encloses is painted as a comment, not as a string
    bool overLines = false;  // goes on in the next line where it is not closed
    bool isRaw = false;      // the escape character is an ordinary one inside

    bool canHoldCode() const { return overLines && !isRaw; }
};

// The default is what a profile means on its own: one quote, in one line, without an escape character.
struct QuoteRules {
    static constexpr std::size_t kMostQuotes = 8;

    std::array<Quote, kMostQuotes> quotes;  // the first that matches counts, so longer ones stand before shorter ones
    std::uint8_t count = 0;
    bool hasString = false;        // one of them is a string: the profile's string character does not count
    bool hasComment = false;       // one of them is a comment: the profile's start and end do not count
    char escape = '\0';            // it and the character after it open and close nothing
    bool commentsAtWords = false;  // a line comment begins only after a blank or one of these:
    ShortText<31> wordBreaks;
    // In quotes that go over lines and are not raw, what stands between these two is code.
    ShortText<3> innerStart;
    char innerEnd = '\0';
    // A word after it begins a text, from the next line to the line that is this word alone.
    ShortText<3> hereText;
    // Where the first is not 0: only what stands between the two is code, all around it is text.
    char codeStart = '\0';
    char codeEnd = '\0';

    // The state of a line that starts inside a quote, and the other way round (none where it is inside of no quote).
    LineState stateIn(const Quote& quote) const {
        return static_cast<LineState>(static_cast<int>(LineState::FirstQuote) + (&quote - begin()));
    }
    const Quote* quoteIn(LineState state) const {
        const LineState innermost = InnermostOf(state);
        const bool isQuote = innermost >= LineState::FirstQuote && innermost < LineState::FirstHereText;
        return isQuote ? begin() + (static_cast<int>(innermost) - static_cast<int>(LineState::FirstQuote)) : nullptr;
    }

    const Quote* begin() const { return quotes.data(); }
    const Quote* end() const { return quotes.data() + count; }
    // Whether anything goes beyond the profile.
    bool isGiven() const {
        return count > 0 || escape != '\0' || commentsAtWords || codeStart != '\0' || !hereText.isEmpty();
    }
    // Puts it before the shorter ones. One too many, or one without a start, is left out.
    void add(const Quote& quote);
};

}  // namespace vexa

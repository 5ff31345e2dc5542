// Cuts one line of text, from left to right, into the tokens that syntax colouring paints.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/units.h"
#include "language/token_rules.h"

namespace vexa {

enum class TokenKind : std::uint8_t {
    Comment = 1,
    Word = 2,
    Keyword = 3,
    Number = 6,
    Preprocessor = 7,
    String = 8,
    Symbols = 9,
    EndOfLine = 100,
    Tab = 102
};

// A token is never empty, but for the end of the line, which has no text at all (its data() is null).
struct Token {
    std::string_view text;
    TokenKind kind = TokenKind::EndOfLine;
};

// The element in whose colour the tokens of a kind are painted.
ColourElement ColourOfKind(TokenKind kind);

// The tokens of a line follow each other without a gap. A byte 0 in the text ends the line; what comes after it
// belongs to no token. There are no escape characters, unless the rules name one: a backslash before a quote does not
// keep the string open. The rules and the text must outlive the tokenizer.
class LineTokenizer {
  public:
    // A line that starts inside a comment or a quote begins with a token up to its end.
    LineTokenizer(const TokenRules& rules, std::string_view text, LineState start = LineState::Outside);

    // The next token; at the end of the line, however often asked, the one for the end.
    Token NextToken();
    // The element that the last token is painted in.
    ColourElement ColourOfKind() const { return vexa::ColourOfKind(token_.kind); }
    // Whether the last token, a word, is a keyword: it is listed, and what follows it is a blank, a tab, the line's end
    // or a delimiter.
    bool IsKeyword() const;
    // Where the next line starts, once this line's end is reached.
    LineState endState() const { return hereText_ == LineState::Outside ? state_ : hereText_; }

  private:
    const Token& take(const char* end, TokenKind kind);
    bool takeMarked(const char* start);
    bool takeQuoted(const char* start);
    bool goOn(const char* start);
    bool takeInnerCode(const char* start);
    bool takeHereText(const char* start);
    void takeText(const char* start);
    void takeQuote(const Quote& quote, const char* inside);
    void takeQuoteUpTo(std::string_view inner, const Quote& quote, const char* inside);
    bool startsWith(const char* at, std::string_view text) const;
    const char* endOfComment(const char* searchFrom);
    const char* endOfString(const char* quote) const;
    const char* endOfPreprocessor(const char* start) const;
    const char* endOfNumber(const char* start) const;
    bool endsAtMarker(const char* at) const;
    template <ByteClass part>
    const char* endOfRun(const char* start) const;

    const TokenRules& rules_;
    const char* const begin_;
    const char* next_;
    const char* end_;
    Token token_;
    LineState state_;                          // at the next token
    LineState hereText_ = LineState::Outside;  // what begins with the next line
};

}  // namespace vexa

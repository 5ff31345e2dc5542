#include "language/line_tokenizer.h"

#include <algorithm>
#include <cstring>

#include "base/ascii.h"

namespace vexa {

ColourElement ColourOfKind(TokenKind kind) {
    // The kinds below 100 bear the number of their element.
    return kind < TokenKind::EndOfLine ? static_cast<ColourElement>(kind) : ColourElement::DefaultText;
}

LineTokenizer::LineTokenizer(const TokenRules& rules, std::string_view text, LineState start)
    : rules_(rules), begin_(text.data()), next_(begin_), state_(start) {
    end_ = next_ + TextBeforeNul(text).size();
    // An empty line ends what came here by an escape character alone.
    if (next_ == end_ && GoesOn(start) && !rules.staysOpen(start)) state_ = NestedAs(start, rules.codeState());
}

const Token& LineTokenizer::take(const char* end, TokenKind kind) {
    token_ = {{next_, static_cast<std::size_t>(end - next_)}, kind};
    next_ = end;
    return token_;
}

// A comment in which the end marker is not found goes to the end of the line.
const char* LineTokenizer::endOfComment(const char* searchFrom) {
    const CommentMarker& marker = rules_.commentEnd();
    const char* found = searchFrom < end_ ? marker.find(searchFrom, end_) : end_;
    const bool goesOn = found == end_ && rules_.hasBlockComments();
    state_ = NestedAs(state_, goesOn ? LineState::Comment : rules_.codeState());
    return found == end_ ? end_ : found + marker.length();
}

// Takes a comment that begins with a marker. The end is searched from two characters on, however long the marker is. An
// end marker without a comment before it is coloured as one.
bool LineTokenizer::takeMarked(const char* start) {
    if (rules_.lineCommentMatches(start, begin_, end_)) {
        take(end_, TokenKind::Comment);
    } else if (rules_.commentStart().matches(start, end_)) {
        take(endOfComment(start + std::min<std::ptrdiff_t>(2, end_ - start)), TokenKind::Comment);
    } else if (rules_.commentEnd().matches(start, end_)) {
        take(start + rules_.commentEnd().length(), TokenKind::Comment);
    } else {
        return rules_.goBeyondProfile() && takeQuoted(start);
    }
    return true;
}

const char* LineTokenizer::endOfString(const char* quote) const {
    const char* inside = quote + 1;
    const void* close = std::memchr(inside, rules_.stringQuote(), static_cast<std::size_t>(end_ - inside));
    return close ? static_cast<const char*>(close) + 1 : end_;
}

// The character, any blanks and tabs, and the word that follows.
const char* LineTokenizer::endOfPreprocessor(const char* start) const {
    const char* word = std::find_if_not(start + 1, end_, IsBlank);
    return std::find_if(word, end_, IsBlank);
}

const char* LineTokenizer::endOfNumber(const char* start) const {
    const char* p = start;
    while (p != end_ && (rules_.classOf(*p) & kNumberPart))
        ++p;
    return p;
}

bool LineTokenizer::endsAtMarker(const char* at) const {
    return rules_.anyMarkerMatches(at, begin_, end_);
}

// The first character is a part of the token whatever it is.
template <ByteClass part>
const char* LineTokenizer::endOfRun(const char* start) const {
    for (const char* p = start + 1;; ++p) {
        while (p != end_ && (rules_.classOf(*p) & (part | kMarkerStart)) == part)
            ++p;
        if (p == end_ || !(rules_.classOf(*p) & part) || endsAtMarker(p)) return p;
    }
}

Token LineTokenizer::NextToken() {
    if (next_ == end_) return token_ = {};
    const char* const start = next_;
    if (state_ != rules_.codeState() && goOn(start)) return token_;
    const ByteClass c = rules_.classOf(*start);
    const auto begins = static_cast<TokenStart>(c & kTokenStartMask);
    if (begins != TokenStart::Tab && (c & kMarkerStart) && takeMarked(start)) return token_;
    switch (begins) {
        case TokenStart::Tab:
            return take(start + 1, TokenKind::Tab);
        case TokenStart::String:
            return take(endOfString(start), TokenKind::String);
        case TokenStart::Preprocessor:
            return take(endOfPreprocessor(start), TokenKind::Preprocessor);
        case TokenStart::Number:
            return take(endOfNumber(start), TokenKind::Number);
        case TokenStart::Symbols:
            return take(endOfRun<kSymbolPart>(start), TokenKind::Symbols);
        case TokenStart::Word:
            break;
    }
    take(endOfRun<kWordPart>(start), TokenKind::Word);
    if (IsKeyword()) token_.kind = TokenKind::Keyword;
    return token_;
}

bool LineTokenizer::IsKeyword() const {
    if (!rules_.isListed(token_.text)) return false;
    return next_ == end_ || IsBlank(*next_) || (rules_.classOf(*next_) & kDelimiter);
}

}  // namespace vexa

// What the tokenizer does by rules beyond the profile.
#include <algorithm>

#include "base/ascii.h"
#include "language/line_tokenizer.h"

namespace vexa {

namespace {

// The state of the lines of a text that ends with a line of one word.
LineState HereTextUpTo(std::string_view word) {
    unsigned hash = 0;
    for (const char c : word)
        hash = hash * 31 + static_cast<unsigned char>(c);
    return static_cast<LineState>(static_cast<unsigned>(LineState::FirstHereText) + hash % kHereTexts);
}

// Code in text begins with a name, as of a tag: that of "<a", "</a" and "<!a", but not "a <= b" and "<![CDATA[".
bool BeginsCode(const char* at, const char* end) {
    if (at != end && (*at == '/' || *at == '!' || *at == '?')) ++at;
    return at != end && UpperAscii(*at) != LowerAscii(*at);
}

}  // namespace

// What only rules beyond the profile know.
bool LineTokenizer::takeQuoted(const char* start) {
    const QuoteRules& rules = rules_.quotes();
    const Quote* quote = nullptr;
    if (*start == rules.escape) {
        take(start + std::min<std::ptrdiff_t>(2, end_ - start), TokenKind::Symbols);
    } else if (*start == rules.codeEnd) {
        take(start + 1, TokenKind::Symbols);
        state_ = LineState::Outside;
    } else if ((quote = rules_.quoteAt(start, begin_, end_)) != nullptr) {
        takeQuote(*quote, start + quote->open.view().size());
    } else {
        return takeInnerCode(start) || takeHereText(start);
    }
    return true;
}

// The end of code in a quote, after which the quote goes on.
bool LineTokenizer::takeInnerCode(const char* start) {
    const QuoteRules& rules = rules_.quotes();
    if (*start != rules.innerEnd || state_ == InnermostOf(state_)) return false;
    for (const Quote& quote : rules) {
        if (!quote.canHoldCode()) continue;
        state_ = NestedAs(state_, rules.stateIn(quote), -1);
        take(start + 1, TokenKind::Symbols);
        return true;
    }
    return false;
}

// The word that ends a text which begins with the next line.
bool LineTokenizer::takeHereText(const char* start) {
    const std::string_view word = rules_.hereWordAt(start, begin_, end_);
    if (word.empty()) return false;
    hereText_ = HereTextUpTo(word);
    const char* end = word.data() + word.size();
    take(end != end_ && *end == word.data()[-1] ? end + 1 : end, TokenKind::String);
    return true;
}

bool LineTokenizer::startsWith(const char* at, std::string_view text) const {
    return !text.empty() && std::string_view(at, end_).starts_with(text);
}

// The rest of a quote, from a position inside, or the beginning of code there.
void LineTokenizer::takeQuote(const Quote& quote, const char* inside) {
    const bool canHoldCode = quote.canHoldCode() && CanNest(state_);
    const std::string_view inner = canHoldCode ? rules_.quotes().innerStart.view() : std::string_view();
    if (inside == next_ && startsWith(inside, inner)) {
        state_ = NestedAs(state_, rules_.codeState(), 1);
        take(inside + inner.size(), TokenKind::Symbols);
    } else {
        takeQuoteUpTo(inner, quote, inside);
    }
}

// As far as code. Without an end the quote goes to the end of the line, and on into the next line if it may, or if an
// escape character stands there.
void LineTokenizer::takeQuoteUpTo(std::string_view inner, const Quote& quote, const char* inside) {
    const std::string_view close = quote.close.view();
    const char escape = quote.isRaw ? '\0' : rules_.quotes().escape;
    bool goesOn = quote.overLines;
    const char* end = inside;
    for (; end != end_ && !startsWith(end, close) && !startsWith(end, inner); ++end) {
        if (*end != escape) continue;
        goesOn = goesOn || end + 1 == end_;
        if (end + 1 != end_) ++end;
    }
    const bool closes = startsWith(end, close);
    if (closes) end += close.size();
    const LineState after = quote.isComment ? LineState::Outside : rules_.codeState();
    state_ = NestedAs(state_, goesOn && !closes ? rules_.quotes().stateIn(quote) : after);
    take(end, quote.isComment ? TokenKind::Comment : TokenKind::String);
}

// In a profile that tells code from text: up to where code or a comment begins.
void LineTokenizer::takeText(const char* start) {
    const QuoteRules& rules = rules_.quotes();
    const Quote* quote = rules_.quoteAt(start, begin_, end_);
    if (quote != nullptr && quote->isComment) {
        takeQuote(*quote, start + quote->open.view().size());
    } else if (*start == '\t') {
        take(start + 1, TokenKind::Tab);
    } else if (*start == rules.codeStart && BeginsCode(start + 1, end_)) {
        state_ = LineState::Code;
        take(start + 1, TokenKind::Symbols);
    } else {
        const char* end = start + 1;
        while (end != end_ && *end != '\t' && *end != rules.codeStart)
            ++end;
        take(end, TokenKind::Word);
    }
}

// A token that does not begin in code; false for one that does, in a quote.
bool LineTokenizer::goOn(const char* start) {
    if (state_ >= LineState::FirstHereText) {
        if (state_ == HereTextUpTo(TrimBlanks({start, static_cast<std::size_t>(end_ - start)})))
            state_ = rules_.codeState();
        take(end_, TokenKind::String);
    } else if (const Quote* quote = rules_.quotes().quoteIn(state_)) {
        takeQuote(*quote, start);
    } else if (InnermostOf(state_) == LineState::Comment) {
        take(endOfComment(start), TokenKind::Comment);
    } else if (state_ == LineState::Outside) {
        takeText(start);
    } else {
        return false;
    }
    return true;
}

}  // namespace vexa

#include "language/token_rules.h"

#include <algorithm>
#include <cstring>

#include "base/ascii.h"

namespace vexa {

namespace {

static_assert(kKeywordLimit < 32, "a bit for each length");

constexpr bool IsLetter(char c) {
    return LowerAscii(c) >= 'a' && LowerAscii(c) <= 'z';
}

constexpr bool IsNumberPart(char c) {
    return IsDigit(c) || c == '.' || LowerAscii(c) == 'x' || (LowerAscii(c) >= 'a' && LowerAscii(c) <= 'f');
}

TokenStart StartOf(char c, const ExtensionProfile& profile, bool delimits) {
    if (c == '\t') return TokenStart::Tab;
    if (c == profile.stringQuote() && !profile.quotes().isGiven()) return TokenStart::String;
    if (c == profile.preprocessor()) return TokenStart::Preprocessor;
    if (IsDigit(c)) return TokenStart::Number;
    return c == ' ' || delimits ? TokenStart::Symbols : TokenStart::Word;
}

// Letters and digits are parts of words even when the profile lists them as delimiters.
ByteClass ClassOf(char c, const ExtensionProfile& profile) {
    const bool listed = profile.delimiters().find(c) != std::string::npos;
    const bool delimits = listed && !IsDigit(c) && !IsLetter(c);
    ByteClass result = static_cast<ByteClass>(StartOf(c, profile, delimits));
    if (!IsBlank(c)) result |= delimits ? kSymbolPart : kWordPart;
    if (c == ' ') result |= kSymbolPart;
    if (IsNumberPart(c)) result |= kNumberPart;
    if (delimits) result |= kDelimiter;
    return result;
}

constexpr bool IsWordPart(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_';
}

Quote PlainQuote(char c) {
    Quote quote;
    if (c != '\0') quote.open = quote.close = ShortText<7>({&c, 1});
    return quote;
}

// Whether the last character before a position, blanks aside, is one of these; at the line's start it is.
bool IsBehind(const char* at, const char* begin, const ShortText<31>& characters) {
    do {
        if (at == begin) return true;
    } while (IsBlank(*--at));
    return characters.contains(*at);
}

}  // namespace

CommentMarker::CommentMarker(std::string_view text)
    : length_(static_cast<std::uint8_t>(std::min(text.size(), kCommentLimit))) {
    if (length_ > 0) first_ = text[0];
    if (length_ > 1) second_ = text[1];
}

const char* CommentMarker::find(const char* from, const char* end) const {
    while (length_ > 0 && from < end) {
        from = static_cast<const char*>(std::memchr(from, first_, static_cast<std::size_t>(end - from)));
        if (from == nullptr) break;
        if (matches(from, end)) return from;
        ++from;
    }
    return end;
}

TokenRules::TokenRules(const ExtensionProfile& profile)
    : lineComment_(profile.lineComment()),
      commentStart_(profile.quotes().hasComment ? std::string_view() : profile.commentStart()),
      commentEnd_(profile.quotes().hasComment ? std::string_view() : profile.commentEnd()),
      stringQuote_(profile.stringQuote()),
      extended_(profile.quotes().isGiven()),
      codeState_(profile.quotes().codeStart == '\0' ? LineState::Outside : LineState::Code),
      keywords_(profile.keywords()),
      quotes_(profile.quotes()) {
    // So that the escape character counts for it, too.
    if (extended_ && !quotes_.hasString) quotes_.add(PlainQuote(stringQuote_));
    setClasses(profile);
    indexKeywords();
}

void TokenRules::setClasses(const ExtensionProfile& profile) {
    for (int byte = 0; byte < 256; ++byte)
        classes_[static_cast<std::size_t>(byte)] = ClassOf(static_cast<char>(byte), profile);
    for (const CommentMarker* marker : {&lineComment_, &commentStart_, &commentEnd_}) {
        if (marker->length() > 0) markStart(marker->first());
    }
    for (const Quote& quote : quotes_)
        markStart(quote.open.view()[0]);
    for (const char c : {quotes_.escape, quotes_.codeEnd, quotes_.innerEnd})
        markStart(c);
    if (!quotes_.hereText.isEmpty()) markStart(quotes_.hereText.view()[0]);
}

void TokenRules::markStart(char c) {
    classes_[static_cast<unsigned char>(c)] |= kMarkerStart;
}

bool TokenRules::startsWord(const char* at, const char* begin) const {
    return !quotes_.commentsAtWords || at == begin || IsBlank(at[-1]) || quotes_.wordBreaks.contains(at[-1]);
}

const Quote* TokenRules::quoteAt(const char* at, const char* begin, const char* end) const {
    const std::string_view text(at, end);
    for (const Quote& quote : quotes_) {
        if (!text.starts_with(quote.open.view())) continue;
        if (quote.behind.isEmpty() || IsBehind(at, begin, quote.behind)) return &quote;
    }
    return nullptr;
}

// Neither part of a longer run of its characters nor before one, and a "-" or a quote may stand before the word.
std::string_view TokenRules::hereWordAt(const char* at, const char* begin, const char* end) const {
    const std::string_view open = quotes_.hereText.view();
    std::string_view text(at, end);
    if (open.empty() || !text.starts_with(open) || (at != begin && at[-1] == open[0])) return {};
    text.remove_prefix(open.size());
    if (text.starts_with('-')) text.remove_prefix(1);
    text = TrimBlanks(text);
    if (!text.empty() && std::string_view("'\"\\").find(text[0]) != std::string_view::npos) text.remove_prefix(1);
    std::size_t size = 0;
    while (size < text.size() && IsWordPart(text[size]))
        ++size;
    return text.substr(0, size > 0 && IsDigit(text[0]) ? 0 : size);
}

bool TokenRules::breaksAt(const char* at, const char* begin, const char* end) const {
    return *at == quotes_.escape || *at == quotes_.codeEnd || *at == quotes_.innerEnd ||
           quoteAt(at, begin, end) != nullptr || !hereWordAt(at, begin, end).empty();
}

bool TokenRules::mayOpen(std::string_view line) const {
    const char* begin = line.data();
    if (commentStart_.find(begin, begin + line.size()) != begin + line.size()) return true;
    if (!extended_ || line.empty()) return false;
    if (line.back() == quotes_.escape || line.find(quotes_.codeStart) != std::string_view::npos) return true;
    for (const Quote& quote : quotes_) {
        if (quote.overLines && line.find(quote.open.view()) != std::string_view::npos) return true;
    }
    return !quotes_.hereText.isEmpty() && line.find(quotes_.hereText.view()) != std::string_view::npos;
}

void TokenRules::indexKeywords() {
    std::ranges::sort(keywords_);
    for (const std::string& keyword : keywords_) {
        const auto first = static_cast<unsigned char>(keyword[0]);
        lengthsWith_[first] |= 1u << keyword.size();
        ++firstWith_[first + 1u];
    }
    for (std::size_t byte = 0; byte < 256; ++byte)
        firstWith_[byte + 1] = static_cast<std::uint16_t>(firstWith_[byte + 1] + firstWith_[byte]);
}

bool TokenRules::isListed(std::string_view word) const {
    if (word.empty() || word.size() > kKeywordLimit) return false;
    const auto first = static_cast<unsigned char>(word[0]);
    if ((lengthsWith_[first] >> word.size() & 1u) == 0) return false;
    const auto begin = keywords_.begin();
    return std::binary_search(begin + firstWith_[first], begin + firstWith_[first + 1u], word, std::less<>());
}

std::string_view TextBeforeNul(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

}  // namespace vexa

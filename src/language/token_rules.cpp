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
    if (c == profile.stringQuote()) return TokenStart::String;
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
      commentStart_(profile.commentStart()),
      commentEnd_(profile.commentEnd()),
      stringQuote_(profile.stringQuote()),
      keywords_(profile.keywords()) {
    setClasses(profile);
    indexKeywords();
}

void TokenRules::setClasses(const ExtensionProfile& profile) {
    for (int byte = 0; byte < 256; ++byte)
        classes_[static_cast<std::size_t>(byte)] = ClassOf(static_cast<char>(byte), profile);
    for (const CommentMarker* marker : {&lineComment_, &commentStart_, &commentEnd_}) {
        if (marker->length() > 0) classes_[static_cast<unsigned char>(marker->first())] |= kMarkerStart;
    }
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

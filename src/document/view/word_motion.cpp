#include "document/view/word_motion.h"

#include <algorithm>

namespace vexa {

namespace {

enum class Kind { Blank, Word, Other };

Kind KindOf(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte == ' ' || byte == '\t') return Kind::Blank;
    const bool letter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
    const bool digit = byte >= '0' && byte <= '9';
    return letter || digit || byte == '_' || byte > 127 ? Kind::Word : Kind::Other;
}

CharColumn Column(std::size_t i) {
    return CharColumn(static_cast<std::int32_t>(i));
}

}  // namespace

std::optional<CharSpan> WordAt(std::string_view text, CharColumn column) {
    const auto isWord = [](char c) { return KindOf(c) == Kind::Word; };
    const auto at = static_cast<std::size_t>(column.value);
    if (at > text.size()) return std::nullopt;
    std::size_t begin = at;
    while (begin > 0 && isWord(text[begin - 1]))
        --begin;
    std::size_t end = at;
    while (end < text.size() && isWord(text[end]))
        ++end;
    if (begin == end) return std::nullopt;
    return CharSpan{Column(begin), Column(end)};
}

std::optional<CharColumn> NextWordStart(std::string_view text, CharColumn column) {
    auto i = static_cast<std::size_t>(column.value);
    if (i >= text.size()) return std::nullopt;
    const Kind here = KindOf(text[i]);
    while (i < text.size() && KindOf(text[i]) == here)
        ++i;
    while (i < text.size() && KindOf(text[i]) == Kind::Blank)
        ++i;
    if (i == text.size()) return std::nullopt;
    return Column(i);
}

std::optional<CharColumn> PreviousWordStart(std::string_view text, CharColumn column) {
    std::size_t i = std::min(static_cast<std::size_t>(column.value), text.size());
    while (i > 0 && KindOf(text[i - 1]) == Kind::Blank)
        --i;
    if (i == 0) return std::nullopt;
    const Kind kind = KindOf(text[i - 1]);
    while (i > 0 && KindOf(text[i - 1]) == kind)
        --i;
    return Column(i);
}

}  // namespace vexa

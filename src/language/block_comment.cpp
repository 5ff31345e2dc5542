#include "language/block_comment.h"

#include "language/line_tokenizer.h"

namespace vexa {

namespace {

// Most lines hold no marker, which is found out faster than their tokens.
bool EndsInside(const TokenRules& rules, const char* begin, const char* end) {
    if (rules.commentStart().find(begin, end) == end) return false;
    LineTokenizer tokens(rules, {begin, static_cast<std::size_t>(end - begin)});
    while (tokens.NextToken().kind != TokenKind::EndOfLine) {
    }
    return tokens.endsInComment();
}

}  // namespace

CommentEffect CommentEffectOf(const TokenRules& rules, std::string_view line) {
    if (!rules.hasBlockComments()) return {};
    line = TextBeforeNul(line);
    const char* begin = line.data();
    const char* end = begin + line.size();
    const char* close = rules.commentEnd().find(begin, end);
    const bool closes = close != end && !EndsInside(rules, close + rules.commentEnd().length(), end);
    return {EndsInside(rules, begin, end), closes};
}

}  // namespace vexa

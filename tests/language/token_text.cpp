#include "language/token_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vexa::test {

namespace {

constexpr std::pair<TokenKind, char> kLetters[] = {
    {TokenKind::Comment, 'c'},      {TokenKind::Word, 'w'},   {TokenKind::Keyword, 'k'}, {TokenKind::Number, 'n'},
    {TokenKind::Preprocessor, 'p'}, {TokenKind::String, 's'}, {TokenKind::Symbols, 'y'}, {TokenKind::Tab, 't'},
};

char LetterOf(TokenKind kind) {
    const auto* row = std::ranges::find(kLetters, kind, &std::pair<TokenKind, char>::first);
    return row == std::end(kLetters) ? '?' : row->second;
}

// The rules of a profile, applied to a text that holds no byte 0.
class PlainTokenizer {
  public:
    PlainTokenizer(const ExtensionProfile& profile, std::string_view text) : profile_(profile), text_(text) {}

    std::string colours(bool& insideComment) {
        std::string result;
        if (insideComment) {
            const std::size_t end = commentEnd(0, insideComment);
            result.append(end, 'c');
        }
        while (result.size() < text_.size()) {
            const std::size_t start = result.size();
            char letter = 'w';
            const std::size_t end = tokenAt(start, letter, insideComment);
            result.append(end - start, letter);
        }
        return result;
    }

  private:
    bool at(const std::string& marker, std::size_t p) const {
        return !marker.empty() && text_.substr(p, marker.size()) == marker;
    }
    bool markerAt(std::size_t p) const {
        return at(profile_.lineComment(), p) || at(profile_.commentStart(), p) || at(profile_.commentEnd(), p);
    }
    static bool digit(char c) { return std::string_view("0123456789").find(c) != std::string_view::npos; }
    static bool letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
    bool delimiter(char c) const {
        return !digit(c) && !letter(c) && profile_.delimiters().find(c) != std::string::npos;
    }

    std::size_t commentEnd(std::size_t from, bool& insideComment) const {
        const std::string& end = profile_.commentEnd();
        const std::size_t found = end.empty() || from > text_.size() ? std::string_view::npos : text_.find(end, from);
        insideComment = found == std::string_view::npos && !end.empty() && !profile_.commentStart().empty();
        return found == std::string_view::npos ? text_.size() : found + end.size();
    }

    std::size_t tokenAt(std::size_t p, char& kind, bool& insideComment) const {
        const char c = text_[p];
        kind = c == '\t' ? 't' : 'c';
        if (c == '\t') return p + 1;
        if (at(profile_.lineComment(), p)) return text_.size();
        if (at(profile_.commentStart(), p)) return commentEnd(p + 2, insideComment);
        if (at(profile_.commentEnd(), p)) return p + profile_.commentEnd().size();
        if (c == profile_.stringQuote()) {
            kind = 's';
            const std::size_t close = text_.find(c, p + 1);
            return close == std::string_view::npos ? text_.size() : close + 1;
        }
        if (c == profile_.preprocessor()) {
            kind = 'p';
            const std::size_t word = std::min(text_.find_first_not_of(" \t", p + 1), text_.size());
            return std::min(text_.find_first_of(" \t", word), text_.size());
        }
        if (digit(c)) {
            kind = 'n';
            return std::min(text_.find_first_not_of("0123456789.xabcdefXABCDEF", p), text_.size());
        }
        return c == ' ' || delimiter(c) ? symbolsAt(p, kind) : wordAt(p, kind);
    }

    std::size_t symbolsAt(std::size_t p, char& kind) const {
        kind = 'y';
        for (++p; p < text_.size() && (text_[p] == ' ' || (delimiter(text_[p]) && text_[p] != '\t')); ++p) {
            if (markerAt(p)) break;
        }
        return p;
    }

    std::size_t wordAt(std::size_t start, char& kind) const {
        std::size_t p = start + 1;
        while (p < text_.size() && text_[p] != ' ' && text_[p] != '\t' && !delimiter(text_[p]) && !markerAt(p))
            ++p;
        const auto& keywords = profile_.keywords();
        const bool listed = std::ranges::find(keywords, text_.substr(start, p - start)) != keywords.end();
        const bool ends = p == text_.size() || text_[p] == ' ' || text_[p] == '\t' || delimiter(text_[p]);
        kind = listed && ends ? 'k' : 'w';
        return p;
    }

    const ExtensionProfile& profile_;
    std::string_view text_;
};

}  // namespace

std::string ColoursOf(const TokenRules& rules, std::string_view line, LineState start) {
    std::string letters;
    LineTokenizer tokens(rules, line, start);
    for (Token token = tokens.NextToken(); token.kind != TokenKind::EndOfLine; token = tokens.NextToken()) {
        EXPECT_FALSE(token.text.empty());
        EXPECT_EQ(token.text.data(), line.data() + letters.size()) << "tokens leave a gap";
        letters.append(token.text.size(), LetterOf(token.kind));
    }
    letters.append(line.size() - letters.size(), '.');
    return letters;
}

std::string PlainColoursOf(const ExtensionProfile& profile, std::string_view line, bool& insideComment) {
    std::string letters = PlainTokenizer(profile, line.substr(0, line.find('\0'))).colours(insideComment);
    letters.append(line.size() - letters.size(), '.');
    return letters;
}

}  // namespace vexa::test

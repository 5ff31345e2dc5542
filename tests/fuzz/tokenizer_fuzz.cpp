// Whatever the profile and the line: tokens follow each other without a gap up to the line's end, and what a line does
// to a comment that spans lines is what its tokens say.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "language/block_comment.h"
#include "language/line_tokenizer.h"

namespace {

void Require(bool held) {
    if (!held) std::abort();
}

// Takes texts off the front of the input, each with its length before it.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(data, data + size) {}

    char byte() {
        if (rest_.empty()) return 0;
        const char c = rest_[0];
        rest_.erase(0, 1);
        return c;
    }
    std::string text(std::size_t longest) {
        const std::size_t size = static_cast<unsigned char>(byte()) % (longest + 1);
        std::string text = rest_.substr(0, size);
        rest_.erase(0, text.size());
        return text;
    }
    const std::string& rest() const { return rest_; }

  private:
    std::string rest_;
};

vexa::ExtensionProfile ProfileOf(Input& input) {
    vexa::ExtensionProfile profile;
    profile.setDelimiters(input.text(10));
    profile.setCommentStart(input.text(2));
    profile.setCommentEnd(input.text(2));
    profile.setLineComment(input.text(2));
    profile.setStringQuote(input.byte());
    profile.setPreprocessor(input.byte());
    std::vector<std::string> keywords;
    for (int count = input.byte() % 8; count > 0; --count)
        keywords.push_back(input.text(21));
    profile.replaceKeywords(std::move(keywords));
    return profile;
}

void Check(const vexa::TokenRules& rules, std::string_view line, bool startsInside) {
    vexa::LineTokenizer tokens(rules, line, startsInside);
    const char* next = line.data();
    for (;;) {
        const vexa::Token token = tokens.NextToken();
        if (token.kind == vexa::TokenKind::EndOfLine) break;
        Require(!token.text.empty() && token.text.data() == next);
        Require(tokens.ColourOfKind() != vexa::ColourElement::Background);
        next += token.text.size();
    }
    Require(next == line.data() + vexa::TextBeforeNul(line).size());
    Require(vexa::CommentEffectOf(rules, line).after(startsInside) == tokens.endsInComment());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const vexa::TokenRules rules(ProfileOf(input));
    Check(rules, input.rest(), false);
    if (rules.hasBlockComments()) Check(rules, input.rest(), true);
    return 0;
}

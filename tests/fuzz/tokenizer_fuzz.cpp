// Whatever the profile and the line: tokens follow each other without a gap up to the line's end, and what a line does
// to a comment that spans lines is what its tokens say.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/fuzzing.h"
#include "language/block_comment.h"
#include "language/line_tokenizer.h"

namespace vexa::fuzz {
namespace {

// A text with its length before it.
std::string TakeText(Input& input, std::size_t longest) {
    return input.text(input.byte() % (longest + 1));
}

ExtensionProfile ProfileOf(Input& input) {
    ExtensionProfile profile;
    profile.setDelimiters(TakeText(input, 10));
    profile.setCommentStart(TakeText(input, 2));
    profile.setCommentEnd(TakeText(input, 2));
    profile.setLineComment(TakeText(input, 2));
    profile.setStringQuote(static_cast<char>(input.byte()));
    profile.setPreprocessor(static_cast<char>(input.byte()));
    std::vector<std::string> keywords;
    for (int count = input.byte() % 8; count > 0; --count)
        keywords.push_back(TakeText(input, 21));
    profile.replaceKeywords(std::move(keywords));
    return profile;
}

void Check(const TokenRules& rules, std::string_view line, bool startsInside) {
    LineTokenizer tokens(rules, line, startsInside);
    const char* next = line.data();
    for (;;) {
        const Token token = tokens.NextToken();
        if (token.kind == TokenKind::EndOfLine) break;
        Require(!token.text.empty() && token.text.data() == next);
        Require(tokens.ColourOfKind() != ColourElement::Background);
        next += token.text.size();
    }
    Require(next == line.data() + TextBeforeNul(line).size());
    Require(CommentEffectOf(rules, line).after(startsInside) == tokens.endsInComment());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const TokenRules rules(ProfileOf(input));
    Check(rules, input.rest(), false);
    if (rules.hasBlockComments()) Check(rules, input.rest(), true);
    return 0;
}

}  // namespace vexa::fuzz

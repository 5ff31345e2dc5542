// Whatever the profile and the line: tokens follow each other without a gap up to the line's end, and what a line does
// to a comment that spans lines is what its tokens say.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/fuzzing.h"
#include "language/line_tokenizer.h"
#include "language/quote_file.h"

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
    const int counts = input.byte();
    for (int count = counts % 8; count > 0; --count)
        keywords.push_back(TakeText(input, 21));
    profile.replaceKeywords(std::move(keywords));
    if (counts >= 128) profile.setQuotes(ParseQuoteRules(TakeText(input, 120)));
    return profile;
}

void Check(const TokenRules& rules, std::string_view line, LineState start) {
    LineTokenizer tokens(rules, line, start);
    const char* next = line.data();
    for (;;) {
        const Token token = tokens.NextToken();
        if (token.kind == TokenKind::EndOfLine) break;
        Require(!token.text.empty() && token.text.data() == next);
        Require(tokens.ColourOfKind() != ColourElement::Background);
        next += token.text.size();
    }
    Require(next == line.data() + TextBeforeNul(line).size());
    Require(StateAfter(rules, line, start) == tokens.endState());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const TokenRules rules(ProfileOf(input));
    const std::string line = input.rest();
    Check(rules, line, LineState::Outside);
    Check(rules, line, rules.codeState());
    for (const Quote& quote : rules.quotes())
        Check(rules, line, rules.quotes().stateIn(quote));
    if (rules.hasBlockComments()) Check(rules, line, LineState::Comment);
    return 0;
}

}  // namespace vexa::fuzz

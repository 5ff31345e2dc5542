// Tells how the editor colours texts: colour_classes PROFILE [QUOTES] takes a profile file and the text beside it, and
// from its input texts, each behind a line with its length in bytes. It prints a letter for each byte: c comment, s
// string, k keyword, n number, o any other, and the ends of lines as they are.
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "language/line_tokenizer.h"
#include "language/profile_file.h"
#include "language/quote_file.h"

namespace {

char LetterOf(vexa::TokenKind kind) {
    switch (kind) {
        case vexa::TokenKind::Comment:
            return 'c';
        case vexa::TokenKind::String:
            return 's';
        case vexa::TokenKind::Keyword:
            return 'k';
        case vexa::TokenKind::Number:
            return 'n';
        default:
            return 'o';
    }
}

std::string ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Paint(const vexa::TokenRules& rules, std::string& text) {
    auto state = vexa::LineState::Outside;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string line = text.substr(begin, end - begin);
        vexa::LineTokenizer tokens(rules, line, state);
        for (vexa::Token token = tokens.NextToken(); !token.text.empty(); token = tokens.NextToken()) {
            text.replace(begin, token.text.size(), token.text.size(), LetterOf(token.kind));
            begin += token.text.size();
        }
        state = tokens.endState();
        begin = end + 1;
    }
}

}  // namespace

int main(int count, char** arguments) {
    vexa::ExtensionProfile profile;
    if (count < 2 || !vexa::DecodeProfile(ReadFile(arguments[1]), profile)) {
        std::cerr << "usage: colour_classes PROFILE [QUOTES]\n";
        return 2;
    }
    if (count > 2) profile.setQuotes(vexa::ParseQuoteRules(ReadFile(arguments[2])));
    const vexa::TokenRules rules(profile);
    for (std::string length; std::getline(std::cin, length);) {
        std::string text(std::stoul(length), '\0');
        std::cin.read(text.data(), static_cast<std::streamsize>(text.size()));
        Paint(rules, text);
        std::cout << text << std::flush;
    }
}

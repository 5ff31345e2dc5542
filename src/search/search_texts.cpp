#include "search/search_texts.h"

#include "base/ascii.h"

namespace vexa {

namespace {

// What the character after a backslash stands for; NUL where the two have no meaning together.
char Escaped(char c, bool lineEnds) {
    if (c == 't') return '\t';
    if (c == 'n' && lineEnds) return '\n';
    return c == '\\' ? c : '\0';
}

// The end of the list of characters that begins with the bracket at an index.
std::size_t EndOfBrackets(std::string_view pattern, std::size_t open) {
    std::size_t first = open + 1;
    if (first < pattern.size() && pattern[first] == '^') ++first;
    const std::size_t close = pattern.find(']', first + 1);
    return close == std::string_view::npos ? pattern.size() : close + 1;
}

std::string WithTabs(std::string_view brackets) {
    std::string text;
    for (std::size_t i = 0; i < brackets.size(); ++i) {
        const bool isTab = brackets.substr(i, 2) == "\\t";
        if (isTab) ++i;
        text += isTab ? '\t' : brackets[i];
    }
    return text;
}

std::string_view Group(const RegExp& found, std::size_t number, std::size_t length) {
    if (number == 0) return {found.start(0), length};
    const char* start = found.start(number);
    const char* end = found.end(number);
    return start && end ? std::string_view(start, static_cast<std::size_t>(end - start)) : std::string_view();
}

}  // namespace

std::string WithoutEscapes(std::string_view typed, bool lineEnds) {
    std::string text;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const bool isPair = typed[i] == '\\' && i + 1 < typed.size();
        const char meant = isPair ? Escaped(typed[i + 1], lineEnds) : '\0';
        if (meant) ++i;
        text += meant ? meant : typed[i];
    }
    return text;
}

// The engine takes a line end for a branch unless a backslash stands before it.
std::string PatternWithLineEnds(std::string_view typed) {
    std::string pattern;
    for (std::size_t i = 0; i < typed.size();) {
        const std::size_t end = typed[i] == '[' ? EndOfBrackets(typed, i) : i + (typed[i] == '\\' ? 2 : 1);
        const std::string_view part = typed.substr(i, end - i);
        if (part[0] == '[') {
            pattern += WithTabs(part);
        } else {
            pattern += part == "\\n" ? std::string_view("\\\n") : part == "\\t" ? std::string_view("\t") : part;
        }
        i = end;
    }
    return pattern;
}

std::string ReplacementFor(std::string_view typed, const RegExp& found, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        const char next = typed[i] == '\\' && i + 1 < typed.size() ? typed[i + 1] : '\0';
        const char meant = next == '&' ? next : Escaped(next, true);
        if (next) ++i;
        if (IsDigit(next)) {
            text += Group(found, static_cast<std::size_t>(next - '0'), length);
        } else if (meant) {
            text += meant;
        } else if (next) {
            text.append(1, '\\').append(1, next);
        } else if (typed[i] == '&') {
            text += Group(found, 0, length);
        } else {
            text += typed[i];
        }
    }
    return text;
}

}  // namespace vexa

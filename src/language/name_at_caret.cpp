#include "language/name_at_caret.h"

#include <algorithm>
#include <optional>

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr std::string_view kQuotes = "\"'`";
// What Windows forbids in names, and what programs put around them.
constexpr std::string_view kNoNameCharacters = "\"'`<>|*?,;()[]{}=";
constexpr std::string_view kNoLastCharacters = ".:";

bool IsNameCharacter(char c) {
    return static_cast<unsigned char>(c) > ' ' && kNoNameCharacters.find(c) == std::string_view::npos;
}

std::size_t EndOfDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

// ---- a line number after a name -----------------------------------------------------------------------------------

// The length of "(12)" or "(12,3)" at the start of a text; 0 for any other text.
std::size_t LengthOfLineInParentheses(std::string_view text) {
    if (!text.starts_with('(')) return 0;
    std::size_t end = EndOfDigits(text, 1);
    if (end == 1) return 0;
    if (text.substr(end).starts_with(',')) end = EndOfDigits(text, end + 1);
    return text.substr(end).starts_with(')') ? end + 1 : 0;
}

bool TakeParentheses(NamedPlace& place) {
    const std::size_t open = place.name.rfind('(');
    if (open == std::string::npos || open == 0) return false;
    const std::string_view rest = std::string_view(place.name).substr(open);
    if (LengthOfLineInParentheses(rest) != rest.size()) return false;
    place.line = LeadingInteger(rest.substr(1));
    place.name.resize(open);
    return true;
}

// Of a line and a column the line comes first.
void TakeColons(NamedPlace& place) {
    for (int numbers = 0; numbers < 2; ++numbers) {
        const std::size_t colon = place.name.rfind(':');
        if (colon == std::string::npos || colon == 0 || colon + 1 == place.name.size()) return;
        if (EndOfDigits(place.name, colon + 1) != place.name.size()) return;
        place.line = LeadingInteger(std::string_view(place.name).substr(colon + 1));
        place.name.resize(colon);
    }
}

void AddName(std::vector<NamedPlace>& names, std::string_view text) {
    NamedPlace place{std::string(TrimBlanks(text)), 0};
    if (!TakeParentheses(place)) TakeColons(place);
    if (!place.name.empty() && std::ranges::find(names, place) == names.end()) names.push_back(place);
}

// ---- the positions of names
// ------------------------------------------------------------------------------------------

std::string_view TextAfter(std::string_view text, std::string_view word) {
    return text.starts_with(word) ? TrimBlanks(text.substr(word.size())) : std::string_view();
}

// The name in a directive that includes a file; one that is not closed goes to the line's end.
std::optional<std::string_view> IncludedName(std::string_view text) {
    const std::string_view directive = TextAfter(TrimBlanks(text), "#");
    for (const char* word : {"include", "include_next", "import"}) {
        const std::string_view name = TextAfter(directive, word);
        if (!name.starts_with('"') && !name.starts_with('<')) continue;
        const char close = name.front() == '<' ? '>' : '"';
        return name.substr(1, name.find(close, 1) - 1);
    }
    return std::nullopt;
}

// The text between two quotes that the caret is in or at; quotes pair up from the line's start.
std::string_view QuotedAt(std::string_view text, std::size_t at, char quote) {
    for (std::size_t open = text.find(quote); open < at || open == at;) {
        const std::size_t close = text.find(quote, open + 1);
        if (close == std::string_view::npos) break;
        if (at <= close + 1) return text.substr(open + 1, close - open - 1);
        open = text.find(quote, close + 1);
    }
    return {};
}

std::string_view BracketedAt(std::string_view text, std::size_t at) {
    const std::size_t open = text.rfind('<', at);
    if (open == std::string_view::npos) return {};
    const std::size_t close = text.find('>', open);
    const bool isAround = close != std::string_view::npos && at <= close + 1;
    return isAround ? text.substr(open + 1, close - open - 1) : std::string_view();
}

// The end of the name whose line in parentheses the caret is in or right after; elsewhere the caret.
std::size_t EndOfNameBefore(std::string_view text, std::size_t at) {
    const std::size_t open = text.substr(0, at).rfind('(');
    if (open == std::string_view::npos) return at;
    return at <= open + LengthOfLineInParentheses(text.substr(open)) ? open : at;
}

std::string_view BareNameAt(std::string_view text, std::size_t at) {
    std::size_t begin = at;
    while (begin > 0 && IsNameCharacter(text[begin - 1]))
        --begin;
    std::size_t end = at;
    while (end < text.size() && IsNameCharacter(text[end]))
        ++end;
    const std::size_t line = LengthOfLineInParentheses(text.substr(end));
    if (line > 0 && end > begin) return text.substr(begin, end + line - begin);
    const std::string_view name = text.substr(begin, end - begin);
    return name.substr(0, name.find_last_not_of(kNoLastCharacters) + 1);
}

}  // namespace

std::vector<NamedPlace> NamesAtCaret(std::string_view text, CharColumn column) {
    std::vector<NamedPlace> names;
    if (const auto included = IncludedName(text)) {
        AddName(names, *included);
        return names;
    }
    const auto at = static_cast<std::size_t>(column.value);
    if (at > text.size()) return names;
    for (const char quote : kQuotes)
        AddName(names, QuotedAt(text, at, quote));
    AddName(names, BracketedAt(text, at));
    AddName(names, BareNameAt(text, EndOfNameBefore(text, at)));
    AddName(names, BareNameAt(text, at));
    return names;
}

}  // namespace vexa

#include "language/c_functions.h"

#include <algorithm>
#include <span>

#include "base/ascii.h"

namespace vexa {

namespace {

// Words in front of parentheses that are not the parameters of a function; each list in the order of the bytes.
constexpr std::string_view kNoNames[] = {
    "__attribute__", "__declspec", "alignas",  "bool",   "case",   "catch",         "char",
    "constexpr",     "decltype",   "do",       "double", "else",   "explicit",      "float",
    "for",           "foreach",    "function", "if",     "int",    "long",          "noexcept",
    "requires",      "return",     "short",    "signed", "sizeof", "static_assert", "switch",
    "throw",         "typeof",     "unsigned", "using",  "void",   "while"};
constexpr std::string_view kTypeWords[] = {"class", "enum", "interface", "namespace", "struct", "union"};
// Words that no function has after its parameters: what was before them was a macro without a semicolon.
constexpr std::string_view kStarts[] = {"class",  "enum",     "extern",  "inline", "namespace", "static",
                                        "struct", "template", "typedef", "union",  "using"};
constexpr std::string_view kExpressionWords[] = {"case", "delete", "goto", "new", "return", "typedef", "using"};
constexpr std::string_view kFunctionEnds[] = {"const", "final",  "noexcept", "override", "requires",
                                              "throw", "throws", "try",      "volatile"};

bool IsIn(std::span<const std::string_view> words, std::string_view word) {
    return std::ranges::binary_search(words, word);
}

bool IsWordStart(char c) {
    const auto byte = static_cast<unsigned char>(c);
    const char lower = LowerAscii(c);
    return (lower >= 'a' && lower <= 'z') || c == '_' || c == '$' || byte > 127;
}

bool IsWordPart(char c) {
    return IsWordStart(c) || IsDigit(c);
}

std::size_t EndOfWord(std::string_view text, std::size_t at) {
    while (at < text.size() && IsWordPart(text[at]))
        ++at;
    return at;
}

// 1'000: a quote separates digits.
std::size_t EndOfNumber(std::string_view text, std::size_t at) {
    while (at < text.size() && (IsWordPart(text[at]) || text[at] == '.' || text[at] == '\''))
        ++at;
    return at;
}

// A text in quotes ends with its line at the latest.
std::size_t EndOfQuoted(std::string_view text, std::size_t at) {
    const char quote = text[at++];
    while (at < text.size() && text[at] != quote)
        at += text[at] == '\\' ? 2u : 1u;
    return std::min(at + 1, text.size());
}

// The name of an operator may be made of any characters, also of a pair of parentheses.
std::size_t EndOfOperator(std::string_view text, std::size_t at) {
    const std::size_t first = std::min(text.find_first_not_of(" \t", at), text.size());
    const bool isCall = text.substr(first).starts_with("()");
    const std::size_t end = text.find('(', isCall ? first + 2 : first);
    return end == std::string_view::npos ? at : std::max(text.find_last_not_of(" \t", end - 1) + 1, at);
}

}  // namespace

struct CFunctionScanner::Character {
    char character;
    void (CFunctionScanner::*take)();
    bool insideParentheses;
};

const CFunctionScanner::Character CFunctionScanner::kCharacters[] = {
    {'(', &CFunctionScanner::openParenthesis, true}, {')', &CFunctionScanner::closeParenthesis, true},
    {'{', &CFunctionScanner::openBrace, true},       {'}', &CFunctionScanner::closeBrace, true},
    {';', &CFunctionScanner::semicolon, false},      {':', &CFunctionScanner::colon, false},
    {',', &CFunctionScanner::comma, false},          {'=', &CFunctionScanner::equals, false},
    {'<', &CFunctionScanner::openAngle, false},      {'>', &CFunctionScanner::closeAngle, false},
    {'+', &CFunctionScanner::expression, false},     {'/', &CFunctionScanner::expression, false},
    {'%', &CFunctionScanner::expression, false},     {'|', &CFunctionScanner::expression, false},
    {'!', &CFunctionScanner::expression, false},     {'?', &CFunctionScanner::expression, false},
};

// ---- lines -------------------------------------------------------------------------------------------------------

void CFunctionScanner::addLine(std::string_view text) {
    ++line_;
    hasBegun_ = false;
    const bool ignored = isPreprocessor(text);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t next = passOver(text, at);
        if (next > at) {
            at = next;
        } else if (IsWordStart(text[at])) {
            at = ignored ? EndOfWord(text, at) : takeWord(text, at);
        } else {
            if (!ignored) takeCharacter(text, at);
            ++at;
        }
    }
}

bool CFunctionScanner::isPreprocessor(std::string_view text) {
    const bool begins = !insideComment_ && TrimBlanks(text).starts_with('#');
    const bool is = begins || insidePreprocessor_;
    insidePreprocessor_ = is && text.ends_with('\\');
    return is;
}

// Blanks, comments, numbers and texts in quotes.
std::size_t CFunctionScanner::passOver(std::string_view text, std::size_t at) {
    if (insideComment_) return passComment(text, at);
    const char c = text[at];
    if (static_cast<unsigned char>(c) <= ' ') return at + 1;
    if (IsDigit(c)) return EndOfNumber(text, at);
    if (c == '"' || c == '\'') return EndOfQuoted(text, at);
    if (c != '/') return at;
    if (text.substr(at).starts_with("//")) return text.size();
    insideComment_ = text.substr(at).starts_with("/*");
    return insideComment_ ? passComment(text, at + 2) : at;
}

std::size_t CFunctionScanner::passComment(std::string_view text, std::size_t at) {
    const std::size_t end = text.find("*/", at);
    insideComment_ = end == std::string_view::npos;
    return insideComment_ ? text.size() : end + 2;
}

// ---- words -------------------------------------------------------------------------------------------------------

std::size_t CFunctionScanner::takeWord(std::string_view text, std::size_t at) {
    std::size_t end = EndOfWord(text, at);
    if (skippedBraces_ > 0 || statement_.parentheses > 0) return end;
    const std::string_view word = text.substr(at, end - at);
    if (word == "operator") end = EndOfOperator(text, end);
    if (statement_.stage == Stage::AfterParameters && IsIn(kStarts, word)) begin();
    beginAt(at);
    position_ = {line_, begin_, end};
    // After the parameters stand macros that say more of the function.
    const bool isMacro = statement_.function && std::ranges::equal(word, word, {}, UpperAscii);
    last_ = {'\0', !isMacro && !IsIn(kNoNames, word)};
    noteWord(word);
    return end;
}

void CFunctionScanner::noteWord(std::string_view word) {
    const bool isFirst = statement_.words++ == 0;
    statement_.isTemplate |= isFirst && word == "template";
    if (statement_.stage == Stage::Head) {
        const bool canBeType = isFirst || (statement_.isTemplate && statement_.angles == 0);
        statement_.isType |= canBeType && IsIn(kTypeWords, word);
        statement_.isScope |= canBeType && word == "namespace";
        statement_.isExpression |= IsIn(kExpressionWords, word);
    } else if (statement_.stage == Stage::AfterParameters) {
        statement_.hasTrailingWord |= !IsIn(kFunctionEnds, word);
    }
}

// ---- characters --------------------------------------------------------------------------------------------------

void CFunctionScanner::takeCharacter(std::string_view text, std::size_t at) {
    const char c = text[at];
    if (skippedBraces_ > 0) {
        if (c == '{') ++skippedBraces_;
        if (c == '}') closeSkippedBrace(at);
        return;
    }
    if (statement_.parentheses == 0) beginAt(at);
    const bool isScope = c == ':' && (text.substr(at).starts_with("::") || last_.character == ':');
    const auto* const row = std::ranges::find(kCharacters, c, &Character::character);
    const bool means = row != std::end(kCharacters) && (row->insideParentheses || statement_.parentheses == 0);
    const char before = last_.character;
    if (means && !isScope) (this->*row->take)();
    // An arrow closes no angle.
    if (statement_.parentheses == 0) last_ = {c, c == '>' && before != '-' && statement_.words > 1};
    if (last_.isName) position_ = {line_, begin_, at + 1};
}

void CFunctionScanner::openParenthesis() {
    if (statement_.parentheses++ > 0) return;
    statement_.afterParentheses = statement_.stage;
    if (last_.isName && statement_.stage != Stage::Initialisers && statement_.angles == 0) {
        statement_.afterParentheses = Stage::AfterParameters;
        statement_.function = position_;
        statement_.hasTrailingWord = false;
    }
    statement_.stage = Stage::Parentheses;
}

void CFunctionScanner::closeParenthesis() {
    if (statement_.parentheses == 0 || --statement_.parentheses > 0) return;
    statement_.stage = statement_.afterParentheses;
}

bool CFunctionScanner::isDefinition() const {
    if (!statement_.function || statement_.isExpression || statement_.isScope) return false;
    return !(statement_.isType && statement_.hasTrailingWord);
}

// A brace opens a function's body, a list that is passed over, or a scope that may hold functions.
void CFunctionScanner::openBrace() {
    const bool isList = statement_.stage == Stage::Initialisers && last_.character != ')' && last_.character != '}';
    if (statement_.parentheses > 0 || isList) {
        skippedBraces_ = 1;
        return;
    }
    if (isDefinition()) found_.push_back(*statement_.function);
    if (isDefinition() || statement_.isExpression) skippedBraces_ = 1;
    begin();
}

void CFunctionScanner::closeSkippedBrace(std::size_t at) {
    if (--skippedBraces_ > 0 && at > 0) return;
    skippedBraces_ = 0;
    const bool goesOn = statement_.parentheses > 0 || statement_.stage == Stage::Initialisers;
    if (!goesOn || at == 0) begin();
    last_ = {'}', false};
}

void CFunctionScanner::closeBrace() {
    begin();
}

// After the parameters a constructor's initialisers begin, after a class its bases; elsewhere a colon ends a label.
void CFunctionScanner::colon() {
    if (statement_.stage == Stage::AfterParameters) {
        statement_.stage = Stage::Initialisers;
    } else if (statement_.isType) {
        statement_.isScope = true;
    } else if (statement_.stage == Stage::Head) {
        begin();
    }
}

// Declarations of several things in one statement.
void CFunctionScanner::comma() {
    if (statement_.stage != Stage::AfterParameters) return;
    statement_.function.reset();
    statement_.stage = Stage::Head;
}

void CFunctionScanner::equals() {
    if (statement_.stage != Stage::Initialisers && statement_.angles == 0) statement_.isExpression = true;
}

void CFunctionScanner::openAngle() {
    if (statement_.isTemplate && (statement_.words == 1 || statement_.angles > 0)) ++statement_.angles;
}

void CFunctionScanner::closeAngle() {
    if (statement_.angles > 0) --statement_.angles;
}

void CFunctionScanner::expression() {
    if (statement_.stage == Stage::Head) statement_.isExpression = true;
}

void CFunctionScanner::beginAt(std::size_t at) {
    if (!hasBegun_) begin_ = at;
    hasBegun_ = true;
}

void CFunctionScanner::begin() {
    statement_ = {};
    last_ = {};
    hasBegun_ = false;
}

}  // namespace vexa

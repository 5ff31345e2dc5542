#include "external/error_line_parser.h"

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr const char* kErrorPattern = "[ (]*[^a-z]ERROR[^a-z][ :!)]*|^ERROR[^a-z]";
constexpr const char* kWarningPattern = "[ (]*[^a-z]WARNING[^a-z][ :!)]*|^WARNING[^a-z]";
constexpr const char* kLineWordPattern = "[ (]*[^a-z]LINE[^a-z][ (:!)]*[0-9]+";
constexpr const char* kLineInBracketsPattern = "[ (:]+[0-9]+[ ):,]+";
constexpr const char* kDigitsPattern = "[0-9]+";
// In brackets, "\" and ":" stand for themselves: a full path is taken whole.
constexpr const char* kFullFileNamePattern = "[^ \t\")(<'`]*[a-zA-Z0-9_\\:]*\\.[a-zA-Z0-9_]*[^ :\t\")(>'`]";
constexpr const char* kPlainFileNamePattern = "[^ \t\")(<'`]*[a-zA-Z0-9_]*\\.[a-zA-Z0-9_]*[^ :\t\")(>'`]";

constexpr std::size_t kNumberReach = 50;

bool Same(char a, char b) {
    return LowerAscii(a) == LowerAscii(b);
}

}  // namespace

std::optional<std::size_t> ScanIgnoringCase(std::string_view text, std::string_view needle) {
    if (needle.empty()) return std::nullopt;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t start = i;
        std::size_t matched = 0;
        while (matched < needle.size() && i < text.size() && Same(text[i], needle[matched])) {
            ++i;
            ++matched;
        }
        if (matched == needle.size()) return start;
        if (matched == 0) ++i;
    }
    return std::nullopt;
}

ErrorLineParser::ErrorLineParser()
    : errorWord_("error", LetterCase::Ignored),
      warningWord_("warning", LetterCase::Ignored),
      error_(RegExp::Compile(kErrorPattern)),
      warning_(RegExp::Compile(kWarningPattern)),
      lineWord_(RegExp::Compile(kLineWordPattern)),
      lineInBrackets_(RegExp::Compile(kLineInBracketsPattern)),
      digits_(RegExp::Compile(kDigitsPattern)),
      fullFileName_(RegExp::Compile(kFullFileNamePattern)),
      plainFileName_(RegExp::Compile(kPlainFileNamePattern)) {}

bool ErrorLineParser::matches(RegExp& pattern, std::string_view line) {
    if (!RegExp::Execute(&pattern, line, LetterCase::Ignored)) return false;
    matched_.assign(pattern.start(0), pattern.end(0));
    return true;
}

// A search for the word alone tells most lines apart before a pattern is needed.
ErrorLevel ErrorLineParser::levelOf(std::string_view line) {
    if (errorWord_.find(line) && matches(*error_, line)) return ErrorLevel::Error;
    if (warningWord_.find(line) && matches(*warning_, line)) return ErrorLevel::Warning;
    return ErrorLevel::None;
}

void ErrorLineParser::Parse(std::string_view documentName, std::string_view line) {
    fileName_.clear();
    level_ = levelOf(line);
    if (level_ != ErrorLevel::None) findPosition(documentName, line);
}

// A line with a number but no file name is about the document; one with neither is no error line after all.
void ErrorLineParser::findPosition(std::string_view documentName, std::string_view line) {
    FindLineNumber(line);
    external_ = false;
    if (ScanIgnoringCase(line, documentName)) {
        fileName_ = documentName;
    } else if (FindFileName(line)) {
        external_ = true;
    } else if (lineNumber_ == kNoLine) {
        level_ = ErrorLevel::None;
    }
}

bool ErrorLineParser::FindLineNumber(std::string_view line) {
    lineNumber_ = kNoLine;
    if (!matches(*lineWord_, line) && !matches(*lineInBrackets_, line)) return false;
    const std::string part = matched_.substr(0, kNumberReach);
    if (!matches(*digits_, part)) return false;
    lineNumber_ = LeadingInteger(matched_);
    return true;
}

bool ErrorLineParser::FindFileName(std::string_view line) {
    fileName_.clear();
    if (!matches(*fullFileName_, line) && !matches(*plainFileName_, line)) return false;
    fileName_ = matched_.substr(0, kFileNameLimit);
    return true;
}

}  // namespace vexa

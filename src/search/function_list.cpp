#include "search/function_list.h"

#include <algorithm>

#include "base/ascii.h"
#include "language/c_functions.h"
#include "language/profile_list.h"
#include "regexp/regex_matcher.h"

namespace vexa {

namespace {

// Languages in which one line says that a function begins.
struct LineRule {
    std::string_view extensions;  // each between blanks
    const char* pattern;
    std::string_view nameEnds;  // the characters in front of which the shown name ends
    int caseMode;
};
constexpr int kAnyCase = 0;

constexpr LineRule kLineRules[] = {
    {" py pyw ", "^[ \t]*(async[ \t]+)?(def|class)[ \t]+[A-Za-z_]", "(:", RegexMatcher::kCaseSensitive},
    {" pas dpr pp ", "^[ \t]*(class[ \t]+)?(procedure|function|constructor|destructor)[ \t]+[a-z_]", "(:;", kAnyCase},
    {" bas frm vb vbs ",
     "^[ \t]*((public|private|friend|static|shared|declare)[ \t]+)*(sub|function|property)[ \t]+[a-z_]", "('",
     kAnyCase},
    {" pl pm ", "^[ \t]*sub[ \t]+[A-Za-z_]", "({;#", RegexMatcher::kCaseSensitive},
    {" asm ", "^[ \t]*[a-z_@?$][a-z0-9_@?$]*[ \t]+proc\\>", ";", kAnyCase},
};

// All matchers share one case mode, which others rely on.
class KeptCaseMode {
  public:
    KeptCaseMode() = default;
    ~KeptCaseMode() { SetRegExpIgnoreCase(ignoresCase_); }
    KeptCaseMode(const KeptCaseMode&) = delete;
    KeptCaseMode& operator=(const KeptCaseMode&) = delete;

  private:
    const bool ignoresCase_ = RegExpIgnoresCase();
};

const LineRule* RuleFor(const TextDocument& document) {
    std::string extension(ExtensionOf(document.fullPath()));
    std::ranges::transform(extension, extension.begin(), LowerAscii);
    if (extension.empty() || extension.find(' ') != std::string::npos) return nullptr;
    const auto has = [&extension](const LineRule& rule) {
        return rule.extensions.find(" " + extension + " ") != std::string_view::npos;
    };
    const auto* const rule = std::ranges::find_if(kLineRules, has);
    return rule == std::end(kLineRules) ? nullptr : rule;
}

FunctionEntry EntryOf(std::string_view name, LineIndex line) {
    FunctionEntry entry{std::string(TrimBlanks(name)), line};
    std::ranges::replace(entry.name, '\t', ' ');
    return entry;
}

std::vector<FunctionEntry> FindByLines(const TextDocument& document, const LineRule& rule) {
    const KeptCaseMode kept;
    RegexMatcher matcher(rule.caseMode);
    std::vector<FunctionEntry> found;
    const LineIndex last(document.lineCount(LastUsed::Text));
    for (LineIndex line(0); line <= last; ++line) {
        // What stands behind a byte 0 is out of the matcher's sight.
        const std::string text(document.text(line));
        if (matcher.match(text.c_str(), rule.pattern) == 0) continue;
        found.push_back(EntryOf(std::string_view(text).substr(0, text.find_first_of(rule.nameEnds)), line));
    }
    return found;
}

std::vector<FunctionEntry> FindLikeC(const TextDocument& document) {
    CFunctionScanner scanner;
    const LineIndex last(document.lineCount(LastUsed::Text));
    for (LineIndex line(0); line <= last; ++line)
        scanner.addLine(document.text(line));
    std::vector<FunctionEntry> found;
    for (const FunctionPlace& place : scanner.found()) {
        const LineIndex line(place.line);
        found.push_back(EntryOf(document.text(line).substr(place.begin, place.end - place.begin), line));
    }
    return found;
}

}  // namespace

std::vector<FunctionEntry> FunctionsOf(const TextDocument& document) {
    const LineRule* rule = RuleFor(document);
    return rule ? FindByLines(document, *rule) : FindLikeC(document);
}

}  // namespace vexa

#include "search/function_list.h"

#include <algorithm>
#include <memory>

#include "base/ascii.h"
#include "language/c_functions.h"
#include "language/profile_list.h"
#include "regexp/regexp.h"

namespace vexa {

namespace {

// Languages in which one line says that a function begins.
struct LineRule {
    std::string_view extensions;  // each between blanks
    const char* pattern;
    std::string_view nameEnds;  // the characters in front of which the shown name ends
    LetterCase letterCase;
};

constexpr LineRule kLineRules[] = {
    {" py pyw ", "^[ \t]*(async[ \t]+)?(def|class)[ \t]+[A-Za-z_]", "(:", LetterCase::Sensitive},
    {" pas dpr pp ", "^[ \t]*(class[ \t]+)?(procedure|function|constructor|destructor)[ \t]+[a-z_]", "(:;",
     LetterCase::Ignored},
    {" bas frm vb vbs ",
     "^[ \t]*((public|private|friend|static|shared|declare)[ \t]+)*(sub|function|property)[ \t]+[a-z_]", "('",
     LetterCase::Ignored},
    {" pl pm ", "^[ \t]*sub[ \t]+[A-Za-z_]", "({;#", LetterCase::Sensitive},
    {" asm ", "^[ \t]*[a-z_@?$][a-z0-9_@?$]*[ \t]+proc\\>", ";", LetterCase::Ignored},
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
    const std::unique_ptr<RegExp> program = RegExp::Compile(rule.pattern);
    std::vector<FunctionEntry> found;
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex line(0); line <= last; ++line) {
        const std::string_view text = document.text(line);
        if (!RegExp::Execute(program.get(), text, rule.letterCase)) continue;
        found.push_back(EntryOf(text.substr(0, text.find_first_of(rule.nameEnds)), line));
    }
    return found;
}

std::vector<FunctionEntry> FindLikeC(const TextDocument& document) {
    CFunctionScanner scanner;
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex line(0); line <= last; ++line)
        scanner.addLine(document.text(line));
    std::vector<FunctionEntry> found;
    for (const FunctionPosition& position : scanner.found()) {
        const LineIndex line(position.line);
        found.push_back(EntryOf(document.text(line).substr(position.begin, position.end - position.begin), line));
    }
    return found;
}

}  // namespace

std::vector<FunctionEntry> FunctionsOf(const TextDocument& document) {
    const LineRule* rule = RuleFor(document);
    return rule ? FindByLines(document, *rule) : FindLikeC(document);
}

}  // namespace vexa

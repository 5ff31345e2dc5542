#include "ui/dialogs/colour_sample.h"

#include <iterator>

#include "base/strings.h"
#include "language/line_tokenizer.h"

namespace vexa {
namespace {

constexpr std::string_view kLines[] = {
    "#include <vexa.h>", "/* A comment */", "int size = 4095;", "while (size > 0)", "    print(\"text\");",
};

CellRun RunAt(std::string_view line, std::string_view token, ColourElement text) {
    return {static_cast<std::int32_t>(token.data() - line.data()), static_cast<std::int32_t>(token.size()), text,
            ColourElement::Background};
}

// The last run has the line's end: what lies to its right gets the same background.
ViewRow ColouredRow(const TokenRules& rules, std::string_view line, bool highlighting) {
    ViewRow row{std::string(line), {}};
    LineTokenizer tokens(rules, line);
    for (Token token = tokens.NextToken(); token.kind != TokenKind::EndOfLine; token = tokens.NextToken())
        row.runs.push_back(RunAt(line, token.text, highlighting ? tokens.ColourOfKind() : ColourElement::DefaultText));
    return row;
}

}  // namespace

std::vector<ViewRow> ColourSampleRows(bool highlighting) {
    const TokenRules rules{ExtensionProfile()};
    std::vector<ViewRow> rows;
    for (const std::string_view line : kLines)
        rows.push_back(ColouredRow(rules, line, highlighting));
    const std::string marked(LoadText(TextId::ColourSampleMarked));
    const auto length = static_cast<std::int32_t>(marked.size());
    rows.push_back({marked,
                    {{0, length, ColourElement::MarkingText, ColourElement::MarkingBackground},
                     {length, 1, ColourElement::DefaultText, ColourElement::Background}}});
    return rows;
}

}  // namespace vexa

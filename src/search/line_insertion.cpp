#include "search/line_insertion.h"

#include "document/text/line_actions.h"
#include "document/text/run_actions.h"

namespace vexa {

TextPosition InsertLines(EditView& view, TextPosition start, std::int32_t length, std::string_view text) {
    LineEditor& editor = view.editor();
    TextDocument& document = view.document();
    const std::string_view first = text.substr(0, text.find('\n'));
    if (first.size() == text.size()) {
        editor.run<ReplaceRun>(start.line, start.column, length, text);
        return {start.line, start.column + static_cast<std::int32_t>(text.size())};
    }
    const std::string rest(document.text(start.line).substr(static_cast<std::size_t>(start.column.value + length)));
    editor.run<ReplaceRun>(start.line, start.column, length + static_cast<std::int32_t>(rest.size()), first);
    editor.moveToLine(start.line);
    editor.cursorDown();
    const std::string_view last = text.substr(text.rfind('\n') + 1);
    editor.run<InsertLine>(document.makeLine(std::string(last).append(rest)));
    LineIndex end = start.line + 1;
    for (text.remove_suffix(last.size() + 1); text.size() > first.size(); ++end) {
        const std::size_t before = text.rfind('\n');
        editor.run<InsertLine>(document.makeLine(text.substr(before + 1)));
        text = text.substr(0, before);
    }
    return {end, CharColumn(static_cast<std::int32_t>(last.size()))};
}

}  // namespace vexa

#include "document/view/margin_row.h"

#include <algorithm>

#include "document/view/viewport.h"

namespace vexa {

namespace {

constexpr std::size_t kFewestDigits = 4;

char BookmarkOf(const TextDocument& document, LineIndex line) {
    for (std::int32_t n = 0; n < Bookmarks::kCount; ++n) {
        if (document.bookmarks().line(n) == line) return static_cast<char>('0' + n);
    }
    return ' ';
}

}  // namespace

std::int32_t MarginDigits(const TextDocument& document) {
    if (!document.options().LineNumbers) return 0;
    const std::size_t digits = std::to_string(LastShownLine(document).value + 1).size();
    return static_cast<std::int32_t>(std::max(digits, kFewestDigits));
}

MarginRow RenderMarginRow(const TextDocument& document, LineIndex line) {
    MarginRow row;
    row.number.assign(static_cast<std::size_t>(MarginDigits(document)), ' ');
    if (line > LastShownLine(document)) return row;
    const std::string number = std::to_string(line.value + 1);
    if (number.size() <= row.number.size())
        row.number.replace(row.number.size() - number.size(), number.size(), number);
    row.bookmark = BookmarkOf(document, line);
    row.isChanged = document.isLineChanged(line);
    row.isCurrent = line == document.currentLine();
    return row;
}

}  // namespace vexa

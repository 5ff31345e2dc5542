#include "search/files/hit_replacement.h"

#include <algorithm>

#include "base/strings.h"
#include "search/line_insertion.h"

namespace vexa {

std::string HitReplacement::replace(const HitRows& rows, const std::string& text) {
    if (filesIn(rows) > kMostFiles) return FillText(TextId::TooManyFilesToChange, {std::to_string(kMostFiles)});
    SearchOptions options = list_.request().options;
    options.setReplaceText(text);
    const std::size_t end = rows.first + rows.count;
    for (std::size_t row = rows.first; row < end;)
        row = list_.hitOf(row) ? replaceInFile(row, end, options) : row + 1;
    std::string told =
        FillText(TextId::ReplacedInFiles, {std::to_string(replacements_), std::to_string(changedFiles_)});
    if (passedOver_ > 0) told += FillText(TextId::LinesPassedOver, {std::to_string(passedOver_)});
    return told;
}

// The first row after those that are about the same file; they stand together.
std::size_t HitReplacement::endOfFile(std::size_t row, std::size_t end) const {
    const std::string path = list_.pathOf(row);
    do
        ++row;
    while (row < end && list_.hitOf(row) && list_.pathOf(row) == path);
    return row;
}

std::size_t HitReplacement::filesIn(const HitRows& rows) const {
    const std::size_t end = rows.first + rows.count;
    std::size_t files = 0;
    for (std::size_t row = rows.first; row < end && files <= kMostFiles;) {
        const bool isHit = list_.hitOf(row) != nullptr;
        if (isHit) ++files;
        row = isHit ? endOfFile(row, end) : row + 1;
    }
    return files;
}

// Gives the row after those of the file. The last is done first, as replacements may have line ends, which move the
// lines after them.
std::size_t HitReplacement::replaceInFile(std::size_t row, std::size_t end, const SearchOptions& options) {
    const std::size_t next = endOfFile(row, end);
    EditView* const view = list_.open(row);
    if (!view) {
        passedOver_ += static_cast<std::int32_t>(next - row);
        return next;
    }
    LineSearch search(options, DelimitersOf(view->document()));
    const std::int32_t before = replacements_;
    view->marker().clear();
    for (std::size_t left = next; left > row; --left)
        if (!replaceInLine(*view, search, *list_.hitOf(left - 1))) ++passedOver_;
    view->finish();
    files_.refreshActive();
    if (replacements_ > before) ++changedFiles_;
    return next;
}

bool HitReplacement::replaceInLine(EditView& view, LineSearch& search, const HitList::Hit& hit) {
    const TextDocument& document = view.document();
    LineIndex line = hit.line;
    std::optional<LineMatch> next = search.find(document.text(line), CharColumn(0));
    if (next != hit.match) return false;
    while (next) {
        const TextPosition end = InsertLines(view, {line, next->column}, next->length, search.replacement());
        ++replacements_;
        line = end.line;
        next = search.findBehind(document.text(line), end.column);
    }
    return true;
}

}  // namespace vexa

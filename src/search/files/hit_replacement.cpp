#include "search/files/hit_replacement.h"

#include <algorithm>

#include "base/strings.h"
#include "document/text/run_actions.h"

namespace vexa {

std::string HitReplacement::replace(const HitRows& rows, const std::string& text) {
    if (filesIn(rows) > kMostFiles) return FillText(TextId::TooManyFilesToChange, {std::to_string(kMostFiles)});
    SearchOptions options = list_.request().options;
    options.setReplaceText(text);
    const bool hasLineEnds = options.insertedText().find('\n') != std::string::npos;
    if (hasLineEnds) return std::string(LoadText(TextId::ReplacementHasLineEnds));
    const std::size_t end = rows.first + rows.count;
    for (std::size_t row = rows.first; row < end;)
        row = list_.hitOf(row) ? replaceInFile(row, end, options) : row + 1;
    std::string told =
        FillText(TextId::ReplacedInFiles, {std::to_string(replacements_), std::to_string(changedFiles_)});
    if (passedOver_ > 0) told += FillText(TextId::LinesPassedOver, {std::to_string(passedOver_)});
    return told;
}

// The rows about one file stand together.
std::size_t HitReplacement::filesIn(const HitRows& rows) const {
    std::size_t files = 0;
    std::string last;
    for (std::size_t row = rows.first; row < rows.first + rows.count && files <= kMostFiles; ++row) {
        if (!list_.hitOf(row)) continue;
        std::string path = list_.pathOf(row);
        if (path != last) ++files;
        last = std::move(path);
    }
    return files;
}

// The first row behind those that are about the same file.
std::size_t HitReplacement::replaceInFile(std::size_t row, std::size_t end, const SearchOptions& options) {
    const std::string path = list_.pathOf(row);
    EditView* const view = list_.open(row);
    LineSearch search(options, view ? DelimitersOf(view->document()) : std::string_view());
    const std::int32_t before = replacements_;
    if (view) view->marker().clear();
    for (; row < end && list_.hitOf(row) && list_.pathOf(row) == path; ++row) {
        if (!view || !replaceInLine(*view, search, *list_.hitOf(row))) ++passedOver_;
    }
    if (!view) return row;
    view->finish();
    files_.refreshActive();
    if (replacements_ > before) ++changedFiles_;
    return row;
}

bool HitReplacement::replaceInLine(EditView& view, LineSearch& search, const HitList::Hit& hit) {
    const TextDocument& document = view.document();
    std::optional<LineMatch> next = search.find(document.text(hit.line), CharColumn(0));
    if (next != hit.match) return false;
    while (next) {
        const std::string text = search.replacement();
        const CharColumn end = next->column + static_cast<std::int32_t>(text.size());
        view.editor().run<ReplaceRun>(hit.line, next->column, next->length, text);
        ++replacements_;
        next = search.findBehind(document.text(hit.line), end);
    }
    return true;
}

}  // namespace vexa

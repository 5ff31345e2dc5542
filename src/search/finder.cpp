#include "search/finder.h"

#include "search/line_search.h"
#include "search/search_run.h"

namespace vexa {

bool Finder::findNext(EditView& view) {
    SearchProgress progress(notices_, watch_);
    const bool found = SearchRun(view, options_, progress).findNext();
    stopped_ = progress.stopped();
    return found;
}

bool Finder::findNext(ListRows& rows) {
    SearchProgress progress(notices_, watch_);
    LineSearch search(options_, {});
    const std::size_t count = rows.rowCount();
    const std::size_t step = options_.forward() ? 1 : SIZE_MAX;
    const auto findFrom = [&](std::size_t row) {
        while (row < count && !search.find(rows.rowText(row), CharColumn(0)) && !progress.mustStop())
            row += step;
        return row;
    };
    std::size_t row = findFrom(rows.selectedRow().value_or(options_.forward() ? SIZE_MAX : count) + step);
    stopped_ = progress.stopped();
    const bool isAtEnd = row >= count && count > 0 && !stopped_ && !search.isNowhere();
    if (isAtEnd && AsksToGoAround(options_, notices_)) {
        row = findFrom(options_.forward() ? 0 : count - 1);
        stopped_ = progress.stopped();
    }
    if (row >= count || stopped_) return false;
    rows.selectRow(row);
    return true;
}

std::int32_t Finder::replace(EditView& view) {
    SearchProgress progress(notices_, watch_);
    SearchRun(view, options_, progress).replace();
    stopped_ = progress.stopped();
    return progress.replacements();
}

}  // namespace vexa

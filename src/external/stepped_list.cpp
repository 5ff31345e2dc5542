#include "external/stepped_list.h"

#include <algorithm>

namespace vexa {

namespace {

// Where stepping begins without a selection: the last line of the banner's frame.
constexpr std::size_t kBannerEnd = 3;

}  // namespace

void SteppedList::finishStep(std::size_t row, bool found) {
    if (row < rowCount()) selectRow(row);
    if (found) {
        showStop();
    } else {
        tell(LoadText(noMoreStops()));
    }
}

// Only where the step ends is anything shown, so that rows without a stop cost no more than a look.
void SteppedList::NextError() {
    std::size_t row = selectedRow().value_or(kBannerEnd);
    bool found = false;
    while (!found && row + 1 < rowCount())
        found = stopsAt(++row);
    finishStep(std::min(row, rowCount() - 1), found);
}

void SteppedList::PreviousError() {
    std::size_t row = selectedRow().value_or(0);
    bool found = false;
    while (!found && row > 0)
        found = stopsAt(--row);
    if (selectedRow()) {
        finishStep(row, found);
    } else {
        tell(LoadText(noMoreStops()));
    }
}

void ListSteps::add(SteppedList& list) {
    lists_.push_back(&list);
    last_ = &list;
}

void ListSteps::use(const ListRows& list) {
    for (SteppedList* stepped : lists_) {
        if (stepped == &list) last_ = stepped;
    }
}

}  // namespace vexa

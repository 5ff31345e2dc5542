#include "document/print/print_run.h"

#include <algorithm>

namespace vexa {

PrintSequence::PrintSequence(const Range& wanted, std::int32_t pages)
    : first_(std::max(wanted.first, 1)),
      pages_(std::max(std::min(wanted.last, pages) - first_ + 1, 0)),
      copies_(std::max(wanted.copies, 1)),
      collate_(wanted.collate) {}

std::int32_t PrintSequence::pageAt(std::int64_t i) const {
    return first_ + static_cast<std::int32_t>(collate_ ? i % pages_ : i / copies_);
}

namespace {

PrintResult PrintPages(const PrintSequence& sequence, PrintTarget& target, PrintProgress& progress) {
    for (std::int64_t i = 0; i < sequence.count(); ++i) {
        if (!progress.pageComes(i + 1, sequence.count())) return PrintResult::Cancelled;
        if (!target.printPage(sequence.pageAt(i))) return PrintResult::Failed;
    }
    return target.endJob() ? PrintResult::Done : PrintResult::Failed;
}

}  // namespace

PrintResult RunPrint(const PrintSequence& sequence, PrintTarget& target, PrintProgress& progress) {
    if (sequence.count() == 0) return PrintResult::NothingToPrint;
    if (!target.beginJob()) return PrintResult::Failed;
    const PrintResult result = PrintPages(sequence, target, progress);
    if (result != PrintResult::Done) target.abortJob();
    return result;
}

}  // namespace vexa

// Brings pages to where they are printed, one after the other, for as long as the user lets it and nothing fails.
#pragma once

#include <cstdint>

namespace vexa {

// The pages in the order in which they leave the printer.
class PrintSequence {
  public:
    struct Range {
        std::int32_t first = 1;
        std::int32_t last = INT32_MAX;
        std::int32_t copies = 1;
        bool collate = false;  // all pages of a copy before the next copy, instead of all copies of a page
    };

    // Takes from the range what the document has.
    PrintSequence(const Range& wanted, std::int32_t pages);

    std::int64_t count() const { return std::int64_t{pages_} * copies_; }
    // The number of the page that comes as the i-th, counted from 0.
    std::int32_t pageAt(std::int64_t i) const;

  private:
    std::int32_t first_;
    std::int32_t pages_;
    std::int32_t copies_;
    bool collate_;
};

// A printer, which knows the pages by their numbers. After a step that is false the job is to be aborted.
class PrintTarget {
  public:
    virtual ~PrintTarget() = default;
    virtual bool beginJob() = 0;
    virtual bool printPage(std::int32_t number) = 0;
    virtual bool endJob() = 0;
    virtual void abortJob() = 0;
};

// Who is told how far it has got.
class PrintProgress {
  public:
    virtual ~PrintProgress() = default;
    // The i-th of so many pages, counted from 1, comes next. False to go no further.
    virtual bool pageComes(std::int64_t i, std::int64_t count) = 0;
};

enum class PrintResult {
    Done,
    NothingToPrint,
    Cancelled,
    NoPrinter,
    NoAnswer,  // the printer gives none
    NoRoom,    // between the margins
    Failed,
    NotAsked  // the user has not asked for the job after all
};

// A job that is cancelled or fails is aborted, so that what the printer already has of it is thrown away.
PrintResult RunPrint(const PrintSequence& sequence, PrintTarget& target, PrintProgress& progress);

}  // namespace vexa

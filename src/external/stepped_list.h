// A list with rows to be gone through one by one, and the list that is gone through.
#pragma once

#include <vector>

#include "base/strings.h"
#include "external/line_list.h"

namespace vexa {

class SteppedList : public LineList {
  public:
    using LineList::LineList;

    // Selects the next row before or after the selected one at which a step ends, and shows what it is about. Without
    // one, the last or first row is selected and the user is told.
    void NextError();
    void PreviousError();

  protected:
    virtual bool stopsAt(std::size_t row) = 0;
    // For the selected row, the one that was asked about last.
    virtual void showStop() = 0;
    // What the user is told at the end.
    virtual TextId noMoreStops() const = 0;

  private:
    void finishStep(std::size_t row, bool found);
};

// The list that the user has used last is the one whose rows the commands go through; before that the one that came
// last.
class ListSteps {
  public:
    void add(SteppedList& list);
    // Changes nothing for a list that was not added.
    void use(const ListRows& list);
    void next() const { last_->NextError(); }
    void previous() const { last_->PreviousError(); }

  private:
    std::vector<SteppedList*> lists_;
    SteppedList* last_ = nullptr;  // none before the first list is there
};

}  // namespace vexa

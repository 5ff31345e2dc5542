// What each line of a document starts inside of: a comment or a quote that was opened above it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/limits.h"
#include "base/units.h"
#include "language/line_state.h"

namespace vexa {

class DynArray;
class TextLine;
class TokenRules;

// Every line record keeps what its text makes of the state that it starts in; a state is found by following these down
// from the next checkpoint above. Checkpoints are only set as far down as someone has asked, or as the idle steps have
// come. A change takes back those below it, and one that leaves the effect of its line as it was takes back none; so a
// key costs no more than its own line, and what is below is found out again when it is shown.
class LineStates {
  public:
    static constexpr std::int32_t kCheckpointStep = 64;  // lines

    LineStates(DynArray& lines, const Limits& limits) : lines_(lines), limits_(limits) {}

    // Other rules: everything is to be found out again. None: nothing spans lines. They must outlive this.
    void setRules(const TokenRules* rules);
    // Everything is forgotten, for lines that are all new.
    void reset();
    // The text of the line may change from now until another line is touched.
    void touch(LineIndex line);

    // A line that more lines than the limit must be gone through for is taken to start outside for now.
    LineState startOf(LineIndex line);
    // Goes on towards the document's end by at most that many lines; false when there is nothing left to do.
    bool advance(std::int32_t lines);
    // Whether any line has been taken for something since this was last asked, and all are known by now.
    bool takeGuessed();

  private:
    void catchUp();
    void forgetBelow(std::int32_t line);
    bool isComplete() const;
    // From the start of one line to that of another below it.
    LineState follow(LineState state, std::int32_t from, std::int32_t to) const;
    LineState findAfter(TextLine* line, LineState start) const;
    void addCheckpoint();
    // As much of a line as has colours.
    std::string_view colouredText(const TextLine& line) const;

    DynArray& lines_;
    const Limits& limits_;
    const TokenRules* rules_ = nullptr;
    std::vector<LineState> checkpoints_{LineState::Outside};  // of each line at a multiple of the step
    std::int32_t touched_ = -1;                               // the line that touch() named last; -1 for none
    bool hasGuessed_ = false;
};

}  // namespace vexa

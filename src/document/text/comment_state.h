// Which lines of a document start inside a block comment that was opened above them.
#pragma once

#include <cstdint>
#include <vector>

#include "base/limits.h"
#include "base/units.h"
#include "language/token_rules.h"

namespace vexa {

class DynArray;
class TextLine;

// Every line record keeps what its text does to a block comment; a state is found by following these down from the next
// checkpoint above. Checkpoints are only set as far down as someone has asked, or as the idle steps have come. A change
// takes back those below it, and one that leaves the effect of its line as it was takes back none; so a key costs no
// more than its own line, and what is below is found out again when it is shown.
class CommentState {
  public:
    static constexpr std::int32_t kCheckpointStep = 64;  // lines

    CommentState(DynArray& lines, const Limits& limits) : lines_(lines), limits_(limits) {}

    // Other rules: everything is to be found out again. None: nothing is a comment. They must outlive this.
    void setRules(const TokenRules* rules);
    // Everything is forgotten, for lines that are all new.
    void reset();
    // The text of the line may change from now until another line is touched.
    void touch(LineIndex line);

    // A line that more lines than the limit must be gone through for is taken to start outside for now.
    bool startsInside(LineIndex line);
    // Goes on towards the document's end by at most that many lines; false when there is nothing left to do.
    bool advance(std::int32_t lines);
    // Whether any line has been taken for something since this was last asked, and all are known by now.
    bool takeGuessed();

  private:
    void catchUp();
    void forgetBelow(std::int32_t line);
    bool isComplete() const;
    bool after(std::int32_t line, bool startsInside) const;
    void addCheckpoint();
    bool refreshEffect(TextLine& line) const;

    DynArray& lines_;
    const Limits& limits_;
    const TokenRules* rules_ = nullptr;
    std::vector<bool> checkpoints_{false};  // whether each line at a multiple of the step starts inside a comment
    std::int32_t touched_ = -1;             // the line that touch() named last; -1 for none
    bool hasGuessed_ = false;
};

}  // namespace vexa

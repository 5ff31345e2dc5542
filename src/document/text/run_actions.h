// The step that changes many characters of a line at once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/units.h"
#include "document/text/edit_action.h"

namespace vexa {

// Takes a run of characters out of a line and puts a text in its place. Counts as one change of the document for each
// character taken out and each put in, as the steps for single characters do. Where a line is shorter than the position
// when the step is done again, the run is what there is from the text's end on.
class ReplaceRun : public EditAction {
  public:
    // At the cursor, wherever it stands when the step is done.
    ReplaceRun(TextDocument& document, std::int32_t count, std::string_view text);
    // At a position in any line, also one beyond the last column that the cursor can reach. The cursor stays.
    ReplaceRun(TextDocument& document, LineIndex line, CharColumn column, std::int32_t count, std::string_view text);
    bool perform() override;
    void undo() override;

  private:
    void exchange(std::int32_t count);

    LineIndex line_;
    CharColumn column_;
    std::int32_t count_;     // characters to take out
    std::int32_t inserted_;  // characters to put in
    bool atCursor_;
    bool changed_ = false;
    std::string text_;  // what is not in the line at present: before, the text to put in; after, what was taken out
};

}  // namespace vexa

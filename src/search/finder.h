// Finding and replacing in a document from its cursor on.
#pragma once

#include <cstdint>

#include "base/list_rows.h"
#include "base/notices.h"
#include "document/view/edit_view.h"
#include "search/search_options.h"
#include "search/search_progress.h"

namespace vexa {

// Searches line by line, forward to the last line that is not empty or backward to the first, and around only with that
// habit and when the user agrees, which is asked once in an operation. A
// search in either direction begins at the cursor's column and at the start of each further line, so that a backward
// one too finds a line's matches from left to right.
//
// Each operation is one undo group of the view's document. The caller draws the view anew.
class Finder {
  public:
    Finder(SearchOptions& options, Notices& notices, SearchWatch& watch)
        : options_(options), notices_(notices), watch_(watch) {}

    // Moves the cursor to the next match, marks it and brings both into sight. False, with nothing changed, when there
    // is none.
    bool findNext(EditView& view);
    // Selects the next row in which the find text is, after the selected one or, backward, before it. False, with
    // nothing changed, when there is none.
    bool findNext(ListRows& rows);

    // Replaces the pending match where it is still marked, else the next one, and leaves the cursor after the new
    // text. With the replace all option every match from there on is replaced and the cursor stays. The number of
    // replacements; what a stopped operation had replaced by then stays, and can be undone.
    //
    // In replacing all, each position of the text is looked at once: the search goes on after the new text, and matches
    // of no length are replaced only after the characters that follow the match before. With the habit of going around,
    // replacing one also moves to the next.
    std::int32_t replace(EditView& view);

    // Whether the user has stopped the last operation.
    bool wasStopped() const { return stopped_; }

  private:
    SearchOptions& options_;
    Notices& notices_;
    SearchWatch& watch_;
    bool stopped_ = false;
};

}  // namespace vexa

// Finding and replacing in a document from its cursor on.
#pragma once

#include <cstdint>
#include <optional>

#include "base/notices.h"
#include "document/view/edit_view.h"
#include "search/line_search.h"
#include "search/search_options.h"
#include "search/search_progress.h"

namespace vexa {

// Searches line by line, forward to the last line that is not empty or backward to the first, and never around. A
// search in either direction begins at the cursor's column and at the start of each further line, so that a backward
// one too finds a line's matches from left to right.
//
// Each operation is one undo group. The caller draws the view anew.
class Finder {
  public:
    Finder(SearchOptions& options, Notices& notices, SearchWatch& watch)
        : options_(options), notices_(notices), watch_(watch) {}

    // The view that the next operations work on, for as long as one command lasts; none detaches. True for a view.
    bool attach(EditView* view);

    // Puts the cursor to the next match, marks it and brings both into sight. False, with nothing changed, when there
    // is none or nothing is attached.
    bool findNext();

    // Replaces the pending match where it is still marked, else the next one, and leaves the cursor behind the new
    // text. With the replace all option every match from there on is replaced and the cursor stays. The number of
    // replacements; what a stopped operation had replaced by then stays, and can be undone.
    //
    // In replacing all, each place of the text is looked at once: the search goes on behind the new text, and matches
    // of no length are replaced only behind the characters that follow the match before.
    std::int32_t replace();

    // Whether the user has stopped the last operation.
    bool wasStopped() const { return stopped_; }

  private:
    struct Match {
        LineIndex line;
        LineMatch inLine;
    };
    struct Place {
        LineIndex line;
        CharColumn column;
    };

    TextDocument& document() { return view_->document(); }
    LineSearch makeSearch();
    Place searchStart();
    std::optional<Match> findFrom(Place start, LineSearch& search, SearchProgress& progress);
    std::optional<Match> findBehind(const Match& match, CharColumn end, LineSearch& search, SearchProgress& progress);
    std::optional<Match> pendingMatch(LineSearch& search);
    void show(const Match& match);
    void replaceOne(const Match& match);
    void replaceAll(Match match, LineSearch& search, SearchProgress& progress);

    SearchOptions& options_;
    Notices& notices_;
    SearchWatch& watch_;
    EditView* view_ = nullptr;
    bool stopped_ = false;
};

}  // namespace vexa

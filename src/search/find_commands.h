// The commands of searching and what they tell the user.
#pragma once

#include "base/callback.h"
#include "document/view/edit_view.h"
#include "search/finder.h"
#include "search/search_options.h"

namespace vexa {

// What is searched: the document of the active window, or its rows, which cannot be changed; neither when it has none.
struct SearchTarget {
    SearchTarget(EditView* searchedView, ListRows* searchedRows = nullptr) : view(searchedView), rows(searchedRows) {}

    EditView* view;
    ListRows* rows;
};

// What changes the text is given an edit view alone; none when the active window is no document's.
class FindCommands {
  public:
    FindCommands(SearchOptions& options, Notices& notices, SearchWatch& watch)
        : options_(options), notices_(notices), finder_(options, notices, watch) {}

    SearchOptions& options() { return options_; }
    // Told of every search that finds nothing, and whether it is the user who has stopped it.
    void setFailureListener(Callback<void(bool isUserStop)> listener) { failureListener_ = listener; }

    // Find Next (307) and Find Previous (308) also change the direction that is kept.
    void findNext(const SearchTarget& target);
    void findPrevious(const SearchTarget& target);
    // Searches forward for what is marked in the caret's line, or for the word at the caret; tells the user when there
    // is neither, and is false then.
    bool findAtCaret(const SearchTarget& target);

    // What the dialogs do once the options are set. False when there was no document to work on.
    bool find(const SearchTarget& target);
    bool replace(EditView* view);

    void toggleRegularExpression();
    void toggleMatchCase();
    // Says while a regular expression is typed what "\t" in it does not mean.
    void explainTabEscape();

  private:
    // Tells the user when there is none.
    bool has(const SearchTarget& target);
    bool findIn(const SearchTarget& target);
    void tell(std::string_view text) { notices_.status(text, false, false); }
    void tellError(std::string_view text) { notices_.status(text, true, true); }
    void tellNotFound();

    SearchOptions& options_;
    Notices& notices_;
    Finder finder_;
    Callback<void(bool isUserStop)> failureListener_;
};

}  // namespace vexa

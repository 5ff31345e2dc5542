// The commands of searching and what they tell the user.
#pragma once

#include <functional>
#include <utility>

#include "document/view/edit_view.h"
#include "search/finder.h"
#include "search/search_options.h"

namespace vexa {

// Each command is given the edit view of the active window; none when that is no document's.
class FindCommands {
  public:
    FindCommands(SearchOptions& options, Notices& notices, SearchWatch& watch)
        : options_(options), notices_(notices), finder_(options, notices, watch) {}

    SearchOptions& options() { return options_; }
    // Told of every search that finds nothing, and whether it is the user who has stopped it.
    void setFailureListener(std::function<void(bool isUserStop)> listener) { failureListener_ = std::move(listener); }

    // Find Next (307) and Find Previous (308) also change the direction that is kept.
    void findNext(EditView* view);
    void findPrevious(EditView* view);
    // Searches forward for what is marked in the caret's line, or for the word at the caret; tells the user when there
    // is neither.
    void findAtCaret(EditView* view);

    // What the dialogs do once the options are set. False when there was no document to work on.
    bool find(EditView* view);
    bool replace(EditView* view);

    void toggleRegularExpression();
    void toggleMatchCase();
    // Says while a regular expression is typed what "\t" in it does not mean.
    void explainTabEscape();

  private:
    // Tells the user when there is none.
    bool has(const EditView* view);
    void tell(std::string_view text) { notices_.status(text, false, false); }
    void tellError(std::string_view text) { notices_.status(text, true, true); }
    void tellNotFound();

    SearchOptions& options_;
    Notices& notices_;
    Finder finder_;
    std::function<void(bool isUserStop)> failureListener_;
};

}  // namespace vexa

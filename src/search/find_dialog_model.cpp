#include "search/find_dialog_model.h"

#include "search/pattern_pieces.h"

namespace vexa {

FindDialogModel::FindDialogModel(FindCommands& commands, HistoryList& findHistory)
    : commands_(commands), findHistory_(findHistory), snapshot_(commands.options().snapshot()) {
    takeOptions();
}

void FindDialogModel::takeOptions() {
    findText = options().findText();
    wholeWord = options().wholeWord();
    matchCase = options().matchCase();
    regularExpression = options().regularExpression();
    forward = options().forward();
}

void FindDialogModel::takeSearch() {
    takeOptions();
    noteSearch(true);
}

void FindDialogModel::storeFindFields(bool pending) {
    options().setWholeWord(wholeWord);
    options().setMatchCase(matchCase);
    options().setRegularExpression(regularExpression);
    options().setForward(forward);
    options().setFindText(findText, pending);
    findHistory_.Add(options().findText());
}

void FindDialogModel::patternChanged() {
    const bool isLiteral = regularExpression && !options().habits().replacementGroups;
    if (isLiteral && HoldsTabEscape(findText)) commands_.explainTabEscape();
}

// A match of another text that is still under the cursor is stepped over, so its search counts as one.
void FindDialogModel::findNext(const SearchTarget& active) {
    if (!canSearch()) return;
    storeFindFields(true);
    noteSearch(commands_.find(active));
}

void FindDialogModel::cancel() {
    if (!searched_) options().restore(snapshot_);
}

}  // namespace vexa

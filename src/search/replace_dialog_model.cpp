#include "search/replace_dialog_model.h"

namespace vexa {

ReplaceDialogModel::ReplaceDialogModel(FindCommands& commands, HistoryList& findHistory, HistoryList& replaceHistory)
    : FindDialogModel(commands, findHistory),
      replaceText(options().replaceText()),
      replaceAll(options().replaceAll()),
      replaceHistory_(replaceHistory) {}

// A match of another text that is still marked is not what is to be replaced.
void ReplaceDialogModel::replace(EditView* active) {
    if (!canSearch()) return;
    storeFindFields(false);
    options().setReplaceAll(replaceAll);
    options().setReplaceText(replaceText);
    replaceHistory_.Add(options().replaceText());
    noteSearch(commands().replace(active));
}

}  // namespace vexa

// The rules of the Replace dialog.
#pragma once

#include <string>

#include "search/find_dialog_model.h"

namespace vexa {

class ReplaceDialogModel : public FindDialogModel {
  public:
    ReplaceDialogModel(FindCommands& commands, HistoryList& findHistory, HistoryList& replaceHistory);

    std::string replaceText;
    bool replaceAll;

    // Replaces in the active document (none if there is no document window) with the fields as the new options.
    void replace(EditView* active);

  private:
    HistoryList& replaceHistory_;
};

}  // namespace vexa

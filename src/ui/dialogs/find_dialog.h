// The "Find" dialog.
#pragma once

#include "ui/dialogs/search_dialog.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

class FindDialog : public SearchDialog {
  public:
    FindDialog(Application& application, FindCommands& commands, SearchHost& host)
        : SearchDialog(IDD_FIND, application, host), model_(commands, findHistory()) {}

  protected:
    FindDialogModel& model() override { return model_; }

  private:
    FindDialogModel model_;
};

}  // namespace vexa

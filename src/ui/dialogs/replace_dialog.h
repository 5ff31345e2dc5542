// The "Replace" dialog.
#pragma once

#include "search/replace_dialog_model.h"
#include "ui/dialogs/search_dialog.h"

namespace vexa {

class ReplaceDialog : public SearchDialog {
  public:
    ReplaceDialog(Application& application, FindCommands& commands, SearchHost& host);

  protected:
    FindDialogModel& model() override { return model_; }
    void showFields() override;
    void readFields() override;
    void enableButtons() override;
    void saveHistories() override;
    void onControl(int control, UINT notification) override;

  private:
    HistoryList replaceHistory_;
    ReplaceDialogModel model_;
};

}  // namespace vexa

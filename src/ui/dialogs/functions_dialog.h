// The "Functions" dialog.
#pragma once

#include "search/function_list_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class FunctionsDialog : public EditorDialog {
  public:
    // Accepted, it leaves the function that the user wants chosen.
    FunctionsDialog(ConfigStore& store, FunctionListModel& model);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void filterTyped();
    void functionChosen();
    void showRows();

    FunctionListModel& model_;
};

}  // namespace vexa

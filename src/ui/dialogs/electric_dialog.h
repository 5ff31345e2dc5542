// The "Electric Keyboard" dialog.
#pragma once

#include "language/electric_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class ElectricDialog : public EditorDialog {
  public:
    ElectricDialog(ConfigStore& store, ElectricWords& words);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void keywordChosen();
    void keywordTyped();
    void read();
    void showEntries();
    void showFields();
    void refreshChoice();
    void set();
    void remove();
    // Shows the text of a refusal and brings the user to the field; false when there is none.
    bool isRefused(const std::optional<std::string>& refusal);

    ElectricModel model_;
};

}  // namespace vexa

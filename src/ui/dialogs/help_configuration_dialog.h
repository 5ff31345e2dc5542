// The dialog "Help Configuration".
#pragma once

#include <string>

#include "quickhelp/help_configuration_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class HelpConfigurationDialog : public EditorDialog {
  public:
    // The directory of the indexes, without "\" at its end.
    HelpConfigurationDialog(ConfigStore& store, std::string indexDirectory, Notices& notices);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void fileChosen();
    void installedChosen();
    void add();
    void remove();
    void showFiles();
    void showInstalled();
    void showButtons();
    void openRow();

    HelpConfigurationModel model_;
};

}  // namespace vexa

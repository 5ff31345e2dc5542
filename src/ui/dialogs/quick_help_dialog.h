// The dialog "Quick Help", which is "Quick Search" too.
#pragma once

#include <string>

#include "base/history_list.h"
#include "quickhelp/quick_help_commands.h"
#include "quickhelp/quick_help_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class QuickHelpDialogWindow : public EditorDialog {
  public:
    // The history file is in the configuration directory, given without "\" at its end. Accepted, the look-up has a
    // choice.
    QuickHelpDialogWindow(ConfigStore& store, const std::string& configDirectory, HelpLookup& lookup, Notices& notices,
                          QuickHelpDialog kind);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;
    void onGone() override { history_.Save(); }

  private:
    void matchChosen();
    void showRows();
    void focusList();

    HistoryList history_;
    QuickHelpModel model_;
    const QuickHelpDialog kind_;
};

}  // namespace vexa

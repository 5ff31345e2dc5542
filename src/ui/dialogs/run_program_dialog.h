// The "DOS Command Line" and "Program Arguments" dialogs, which ask what a program is given before it runs.
#pragma once

#include "external/run_program_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class RunProgramDialog : public EditorDialog {
  public:
    // Accepted, the request has what was entered, and the histories have it too.
    RunProgramDialog(ConfigStore& store, int dialog, ProgramRequest& request, HistoryList& directories,
                     HistoryList& argumentHistory);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void showCombo(int control, const HistoryList& history, const std::string& text);
    void refreshButtons();
    void argumentsTyped();
    void argumentsChosen();

    const HistoryList& directories_;
    const HistoryList& argumentHistory_;
    RunProgramModel model_;
};

}  // namespace vexa

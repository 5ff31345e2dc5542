#include "ui/dialogs/run_program_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

RunProgramDialog::RunProgramDialog(ConfigStore& store, int dialog, ProgramRequest& request, HistoryList& directories,
                                   HistoryList& argumentHistory)
    : EditorDialog(store, dialog),
      directories_(directories),
      argumentHistory_(argumentHistory),
      model_(request, directories, argumentHistory) {}

void RunProgramDialog::onOpen() {
    setTextOf(IDC_RUN_PROGRAM, model_.program());
    showCombo(IDC_RUN_DIRECTORY, directories_, model_.directory);
    showCombo(IDC_RUN_ARGUMENTS, argumentHistory_, model_.arguments);
    refreshButtons();
    markComboText(IDC_RUN_ARGUMENTS);
    SetFocus(control(IDC_RUN_ARGUMENTS));
}

void RunProgramDialog::showCombo(int control, const HistoryList& history, const std::string& text) {
    limitComboText(control, ProgramRequest::kTextLimit);
    fillList(control, history.entries());
    setTextOf(control, text);
}

void RunProgramDialog::onControl(int control, UINT notification) {
    static constexpr Notification<RunProgramDialog> kRows[] = {
        {IDC_RUN_ARGUMENTS, CBN_EDITCHANGE, &RunProgramDialog::argumentsTyped},
        {IDC_RUN_ARGUMENTS, CBN_SELCHANGE, &RunProgramDialog::argumentsChosen},
    };
    Dispatch(*this, kRows, control, notification);
}

void RunProgramDialog::argumentsTyped() {
    model_.arguments = textOf(IDC_RUN_ARGUMENTS);
    refreshButtons();
}

// The field itself has the chosen text only after this.
void RunProgramDialog::argumentsChosen() {
    model_.arguments = chosenTextOf(IDC_RUN_ARGUMENTS);
    refreshButtons();
}

void RunProgramDialog::refreshButtons() {
    enable(IDOK, model_.canRun());
}

void RunProgramDialog::onAccept() {
    model_.directory = textOf(IDC_RUN_DIRECTORY);
    model_.arguments = textOf(IDC_RUN_ARGUMENTS);
    if (!model_.canRun()) return;
    model_.run();
    close(true);
}

}  // namespace vexa

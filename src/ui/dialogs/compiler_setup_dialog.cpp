#include "ui/dialogs/compiler_setup_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

using Model = CompilerSetupModel;

constexpr CheckBox<Model> kOptions[] = {{IDC_COMPILER_DEBUG, &Model::debug}};
constexpr RadioButton<Model, ShowMode> kShowModes[] = {
    {IDC_COMPILER_MAXIMISED, &Model::display, ShowMode::Maximised},
    {IDC_COMPILER_NORMAL, &Model::display, ShowMode::Normal},
    {IDC_COMPILER_MINIMISED, &Model::display, ShowMode::MinimisedInactive},
};
constexpr TextField<Model> kTexts[] = {
    {IDC_COMPILER_COMMAND, &Model::command, CompilerSetup::kCommandLimit},
    {IDC_COMPILER_RUN_FILE, &Model::runFile, CompilerSetup::kRunFileLimit},
};

}  // namespace

CompilerSetupDialog::CompilerSetupDialog(ConfigStore& store, Notices& notices, CompilerSetup& setup)
    : EditorDialog(store, IDD_COMPILER_SETUP), notices_(notices), model_(setup) {}

void CompilerSetupDialog::onOpen() {
    setChecked(IDC_COMPILER_BATCH, model_.usesBatchFile());
    setChecked(IDC_COMPILER_OTHER, !model_.usesBatchFile());
    showFields();
}

void CompilerSetupDialog::showFields() {
    ShowFields(*this, model_, kOptions, kShowModes, kTexts);
    enable(IDC_COMPILER_RUN_FILE, model_.runFileEnabled());
    enable(IDC_COMPILER_COMMAND, model_.commandEnabled());
}

void CompilerSetupDialog::readFields() {
    ReadFields(*this, model_, kOptions, kShowModes, kTexts);
}

void CompilerSetupDialog::onControl(int control, UINT notification) {
    static constexpr Notification<CompilerSetupDialog> kRows[] = {
        {IDC_COMPILER_BATCH, BN_CLICKED, &CompilerSetupDialog::switchMode},
        {IDC_COMPILER_OTHER, BN_CLICKED, &CompilerSetupDialog::switchMode},
        {IDC_COMPILER_TEST, BN_CLICKED, &CompilerSetupDialog::test},
    };
    Dispatch(*this, kRows, control, notification);
}

// A button also tells of a click when it gets the focus.
void CompilerSetupDialog::switchMode() {
    const bool usesBatchFile = isChecked(IDC_COMPILER_BATCH);
    if (usesBatchFile == model_.usesBatchFile()) return;
    readFields();
    model_.setUsesBatchFile(usesBatchFile);
    showFields();
}

void CompilerSetupDialog::test() {
    readFields();
    model_.test(notices_);
    focusOn(IDC_COMPILER_COMMAND);
}

void CompilerSetupDialog::onAccept() {
    readFields();
    switch (model_.update(notices_)) {
        case Model::Outcome::Close:
            return close(true);
        case Model::Outcome::StayAtCommand:
            return focusOn(IDC_COMPILER_COMMAND);
        case Model::Outcome::StayAtRunFile:
            return focusOn(IDC_COMPILER_RUN_FILE);
    }
}

}  // namespace vexa

#include "ui/dialogs/help_configuration_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

HelpConfigurationDialog::HelpConfigurationDialog(ConfigStore& store, std::string indexDirectory, Notices& notices)
    : EditorDialog(store, IDD_HELP_CONFIGURATION), model_(std::move(indexDirectory), notices) {}

void HelpConfigurationDialog::onOpen() {
    showFiles();
    showInstalled();
}

void HelpConfigurationDialog::showFiles() {
    setTextOf(IDC_HELP_PATH, model_.path());
    std::vector<std::string> texts;
    for (const HelpFileRow& row : model_.rows())
        texts.push_back(row.text());
    fillList(IDC_HELP_FILES, texts);
    if (const auto row = model_.chosenRow()) chooseRow(IDC_HELP_FILES, *row);
    showButtons();
}

void HelpConfigurationDialog::showInstalled() {
    fillList(IDC_HELP_INSTALLED, model_.installed());
    if (const auto row = model_.chosenInstalled()) chooseRow(IDC_HELP_INSTALLED, *row);
    showButtons();
}

// A button that had the focus gives it to the list beside it before it is disabled.
void HelpConfigurationDialog::showButtons() {
    const HWND focus = GetFocus();
    if (focus == control(IDC_HELP_ADD) && !model_.canAdd()) SetFocus(control(IDC_HELP_FILES));
    if (focus == control(IDC_HELP_REMOVE) && !model_.canRemove()) SetFocus(control(IDC_HELP_INSTALLED));
    enable(IDC_HELP_ADD, model_.canAdd());
    enable(IDC_HELP_REMOVE, model_.canRemove());
}

void HelpConfigurationDialog::openRow() {
    if (!model_.open()) {
        MessageBeep(MB_ICONEXCLAMATION);
        return;
    }
    showFiles();
    showInstalled();
}

// Enter in the file list is what a double click is to the mouse.
void HelpConfigurationDialog::onAccept() {
    const bool isInFiles = GetFocus() == control(IDC_HELP_FILES) && model_.chosenRow();
    isInFiles ? openRow() : close(true);
}

void HelpConfigurationDialog::onControl(int number, UINT notification) {
    static constexpr Notification<HelpConfigurationDialog> kRows[] = {
        {IDC_HELP_FILES, LBN_SELCHANGE, &HelpConfigurationDialog::fileChosen},
        {IDC_HELP_FILES, LBN_DBLCLK, &HelpConfigurationDialog::openRow},
        {IDC_HELP_INSTALLED, LBN_SELCHANGE, &HelpConfigurationDialog::installedChosen},
        {IDC_HELP_ADD, BN_CLICKED, &HelpConfigurationDialog::add},
        {IDC_HELP_REMOVE, BN_CLICKED, &HelpConfigurationDialog::remove},
    };
    Dispatch(*this, kRows, number, notification);
}

void HelpConfigurationDialog::fileChosen() {
    model_.chooseRow(chosenRowOf(IDC_HELP_FILES));
    showButtons();
}

void HelpConfigurationDialog::installedChosen() {
    model_.chooseInstalled(chosenRowOf(IDC_HELP_INSTALLED));
    showButtons();
}

void HelpConfigurationDialog::add() {
    model_.add();
    showFiles();
    showInstalled();
}

void HelpConfigurationDialog::remove() {
    model_.remove();
    showInstalled();
}

}  // namespace vexa

#include "ui/dialogs/file_extensions_dialog.h"

#include <algorithm>

#include "framework/dialog_fields.h"
#include "ui/dialogs/extension_edit_dialog.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr int kDescriptionColumn = 26;  // dialog units

}  // namespace

FileExtensionsDialog::FileExtensionsDialog(Application& application, Notices& notices, Changed changed)
    : EditorDialog(application.store, IDD_FILE_EXTENSIONS),
      application_(application),
      notices_(notices),
      changed_(changed),
      model_(application.profiles) {}

void FileExtensionsDialog::onOpen() {
    SendMessageA(control(IDC_EXTENSIONS), LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&kDescriptionColumn));
    showRows(0);
}

void FileExtensionsDialog::showRows(std::size_t chosen) {
    std::vector<std::string> texts;
    for (const FileExtensionRow& row : model_.rows())
        texts.push_back(row.extension + "\t" + row.description);
    fillList(IDC_EXTENSIONS, texts);
    if (!texts.empty()) chooseRow(IDC_EXTENSIONS, std::min(chosen, texts.size() - 1));
    enableButtons();
}

// A button with the focus that is switched off would leave the keyboard without a place to go.
void FileExtensionsDialog::enableButtons() {
    const bool isChosen = chosenRowOf(IDC_EXTENSIONS).has_value();
    if (!isChosen && GetFocus()) focusOn(IDC_NEW_EXTENSION);
    enable(IDOK, isChosen);
    enable(IDC_DELETE_EXTENSION, isChosen);
}

void FileExtensionsDialog::onControl(int control, UINT notification) {
    static constexpr Notification<FileExtensionsDialog> kRows[] = {
        {IDC_EXTENSIONS, LBN_SELCHANGE, &FileExtensionsDialog::enableButtons},
        {IDC_EXTENSIONS, LBN_DBLCLK, &FileExtensionsDialog::editChosen},
        {IDC_NEW_EXTENSION, BN_CLICKED, &FileExtensionsDialog::makeNew},
        {IDC_DELETE_EXTENSION, BN_CLICKED, &FileExtensionsDialog::deleteChosen},
    };
    Dispatch(*this, kRows, control, notification);
}

void FileExtensionsDialog::makeNew() {
    edit(model_.newProfile());
}

void FileExtensionsDialog::editChosen() {
    if (const auto row = chosenRowOf(IDC_EXTENSIONS)) edit(model_.profileOf(*row));
}

void FileExtensionsDialog::edit(ExtensionEditModel model) {
    ExtensionEditDialog dialog(application_, notices_, model);
    if (!dialog.runModal(window())) return;
    model_.readRows();
    showRows(model_.rowOf(model.wantedExtension()).value_or(0));
    changed_();
}

void FileExtensionsDialog::deleteChosen() {
    const auto row = chosenRowOf(IDC_EXTENSIONS);
    if (!row || !model_.deleteProfile(*row, notices_)) return;
    showRows(*row);
    changed_();
}

}  // namespace vexa

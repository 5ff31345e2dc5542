#include "ui/dialogs/replace_in_files_dialog.h"

#include "framework/dialog_fields.h"
#include "search/find_dialog_model.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr RadioButton<FileReplaceFields, bool> kChoices[] = {
    {IDC_ALL_LINES, &FileReplaceFields::inAll, true},
    {IDC_CHOSEN_LINES, &FileReplaceFields::inAll, false},
};

}  // namespace

ReplaceInFilesDialog::ReplaceInFilesDialog(Application& application, FileReplaceFields& fields)
    : EditorDialog(application.store, IDD_REPLACE_IN_FILES),
      fields_(fields),
      history_(application.directories.GetDirectory(kConfigDirectory), FindDialogModel::kReplaceHistoryFile) {}

void ReplaceInFilesDialog::onOpen() {
    setTextOf(IDC_FIND_TEXT, fields_.findText);
    limitComboText(IDC_REPLACE_TEXT, SearchOptions::kTextLimit);
    fillList(IDC_REPLACE_TEXT, history_.entries());
    setTextOf(IDC_REPLACE_TEXT, fields_.replaceText);
    markComboText(IDC_REPLACE_TEXT);
    enable(IDC_CHOSEN_LINES, fields_.hasChosen);
    ShowFields(*this, fields_, kChoices);
    SetFocus(control(IDC_REPLACE_TEXT));
}

void ReplaceInFilesDialog::onAccept() {
    fields_.replaceText = textOf(IDC_REPLACE_TEXT);
    ReadFields(*this, fields_, kChoices);
    history_.Add(fields_.replaceText);
    history_.Save();
    close(true);
}

}  // namespace vexa

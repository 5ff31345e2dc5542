#include "ui/dialogs/replace_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr CheckBox<ReplaceDialogModel> kSwitches[] = {{IDC_REPLACE_ALL, &ReplaceDialogModel::replaceAll}};

}  // namespace

ReplaceDialog::ReplaceDialog(Application& application, FindCommands& commands, SearchHost& host)
    : SearchDialog(IDD_REPLACE, application, host),
      replaceHistory_(application.directories.GetDirectory(kConfigDirectory), FindDialogModel::kReplaceHistoryFile),
      model_(commands, findHistory(), replaceHistory_) {}

void ReplaceDialog::showFields() {
    SearchDialog::showFields();
    showCombo(IDC_REPLACE_TEXT, replaceHistory_, model_.replaceText);
    ShowFields(*this, model_, kSwitches);
}

void ReplaceDialog::readFields() {
    SearchDialog::readFields();
    model_.replaceText = textOf(IDC_REPLACE_TEXT);
    ReadFields(*this, model_, kSwitches);
}

void ReplaceDialog::enableButtons() {
    SearchDialog::enableButtons();
    enable(IDC_REPLACE, model_.canSearch());
}

void ReplaceDialog::saveHistories() {
    SearchDialog::saveHistories();
    replaceHistory_.Save();
}

void ReplaceDialog::onControl(int control, UINT notification) {
    if (control == IDC_REPLACE && notification == BN_CLICKED) {
        run([this](const SearchTarget& active) { model_.replace(active.view); });
    } else {
        SearchDialog::onControl(control, notification);
    }
}

}  // namespace vexa

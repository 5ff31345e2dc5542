#include "ui/dialogs/find_in_files_dialog.h"

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "framework/folder_dialog.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr CheckBox<FileSearchFields> kSwitches[] = {{IDC_SUBFOLDERS, &FileSearchFields::subfolders}};

}  // namespace

FindInFilesDialog::FindInFilesDialog(Application& application, FindCommands& commands, SearchHost& host,
                                     FileSearcher& searcher, FileSearchFields& fields, const std::string& findText)
    : SearchDialog(IDD_FIND_IN_FILES, application, host),
      searcher_(searcher),
      fields_(fields),
      folders_(application.directories.GetDirectory(kConfigDirectory), FileSearchModel::kFolderHistoryFile),
      patterns_(application.directories.GetDirectory(kConfigDirectory), FileSearchModel::kPatternHistoryFile),
      model_(commands, findHistory(), folders_, patterns_, fields) {
    if (!findText.empty()) model_.findText = findText;
}

void FindInFilesDialog::showFields() {
    SearchDialog::showFields();
    showCombo(IDC_SEARCHED_FOLDER, folders_, model_.fields.folder, FileSearchFields::kTextLimit);
    showCombo(IDC_FILE_PATTERNS, patterns_, model_.fields.patterns, FileSearchFields::kTextLimit);
    ShowFields(*this, model_.fields, kSwitches);
}

void FindInFilesDialog::readFields() {
    SearchDialog::readFields();
    model_.fields.folder = textOf(IDC_SEARCHED_FOLDER);
    model_.fields.patterns = textOf(IDC_FILE_PATTERNS);
    ReadFields(*this, model_.fields, kSwitches);
}

void FindInFilesDialog::saveHistories() {
    SearchDialog::saveHistories();
    folders_.Save();
    patterns_.Save();
}

void FindInFilesDialog::onControl(int control, UINT notification) {
    static constexpr Notification<FindInFilesDialog> kRows[] = {
        {IDC_BROWSE_FOLDERS, BN_CLICKED, &FindInFilesDialog::browse},
    };
    if (!Dispatch(*this, kRows, control, notification)) SearchDialog::onControl(control, notification);
}

void FindInFilesDialog::browse() {
    const auto folder = AskFolder(window(), std::string(LoadText(TextId::SearchFolderTitle)));
    if (folder) setTextOf(IDC_SEARCHED_FOLDER, *folder);
    focusOn(IDC_SEARCHED_FOLDER);
}

void FindInFilesDialog::onAccept() {
    readFields();
    const std::string refusal = model_.refusal();
    if (!refusal.empty()) return tell(refusal);
    const FileSearchRequest request = model_.request();
    fields_ = model_.fields;
    close(true);
    searcher_.searchFiles(request);
}

}  // namespace vexa

#include "ui/dialogs/extension_edit_dialog.h"

#include <algorithm>

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "framework/file_dialog.h"
#include "ui/dialogs/file_selection.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

struct Field {
    int control;
    std::string ExtensionEditModel::*value;
    std::size_t limit;
};
constexpr Field kFields[] = {
    {IDC_EXTENSION, &ExtensionEditModel::extension, kExtensionLimit},
    {IDC_DESCRIPTION, &ExtensionEditModel::description, kDescriptionLimit},
    {IDC_PREPROCESSOR, &ExtensionEditModel::preprocessor, 1},
    {IDC_STRING_CHARACTER, &ExtensionEditModel::stringCharacter, 1},
    {IDC_LINE_COMMENT, &ExtensionEditModel::lineComment, kCommentLimit},
    {IDC_COMMENT_START, &ExtensionEditModel::commentStart, kCommentLimit},
    {IDC_COMMENT_END, &ExtensionEditModel::commentEnd, kCommentLimit},
    {IDC_DELIMITERS, &ExtensionEditModel::delimiters, kDelimiterLimit},
};

}  // namespace

ExtensionEditDialog::ExtensionEditDialog(Application& application, Notices& notices, ExtensionEditModel& model)
    : EditorDialog(application.store, IDD_EDIT_EXTENSION),
      options_(application.options),
      notices_(notices),
      model_(model) {}

void ExtensionEditDialog::onOpen() {
    for (const Field& field : kFields) {
        limitTextOf(field.control, field.limit);
        setTextOf(field.control, model_.*field.value);
    }
    enable(IDC_EXTENSION, model_.isExtensionEnabled());
    limitTextOf(IDC_KEYWORD, kKeywordLimit);
    showKeywords(0);
}

void ExtensionEditDialog::readFields() {
    for (const Field& field : kFields)
        model_.*field.value = textOf(field.control);
}

void ExtensionEditDialog::onAccept() {
    readFields();
    if (model_.update(notices_)) return close(true);
    focusOn(model_.isExtensionEnabled() ? IDC_EXTENSION : IDC_DESCRIPTION);
}

void ExtensionEditDialog::onControl(int control, UINT notification) {
    static constexpr Notification<ExtensionEditDialog> kRows[] = {
        {IDC_KEYWORD, EN_SETFOCUS, &ExtensionEditDialog::enterAdds},
        {IDC_KEYWORD, EN_KILLFOCUS, &ExtensionEditDialog::enterUpdates},
        {IDC_ADD_KEYWORD, BN_CLICKED, &ExtensionEditDialog::addKeyword},
        {IDC_REMOVE_KEYWORD, BN_CLICKED, &ExtensionEditDialog::removeKeyword},
        {IDC_IMPORT_KEYWORDS, BN_CLICKED, &ExtensionEditDialog::importKeywords},
    };
    Dispatch(*this, kRows, control, notification);
}

void ExtensionEditDialog::enterAdds() {
    SendMessageA(window(), DM_SETDEFID, IDC_ADD_KEYWORD, 0);
}

void ExtensionEditDialog::enterUpdates() {
    SendMessageA(window(), DM_SETDEFID, IDOK, 0);
}

// ---- keywords ----------------------------------------------------------------------------------------------------

void ExtensionEditDialog::showKeywords(std::size_t chosen) {
    const std::vector<std::string>& keywords = model_.keywords();
    fillList(IDC_KEYWORDS, keywords);
    if (!keywords.empty()) chooseRow(IDC_KEYWORDS, std::min(chosen, keywords.size() - 1));
    // A button with the focus that is switched off would leave the keyboard without a place to go.
    if (keywords.empty() && GetFocus() == control(IDC_REMOVE_KEYWORD)) focusOn(IDC_KEYWORD);
    enable(IDC_REMOVE_KEYWORD, !keywords.empty());
}

// The field is ready for the next keyword.
void ExtensionEditDialog::addKeyword() {
    if (const auto row = model_.addKeywords(textOf(IDC_KEYWORD), notices_)) {
        showKeywords(*row);
        setTextOf(IDC_KEYWORD, {});
    }
    focusOn(IDC_KEYWORD);
}

void ExtensionEditDialog::removeKeyword() {
    const auto row = chosenRowOf(IDC_KEYWORDS);
    if (!row) return;
    model_.removeKeyword(*row);
    showKeywords(*row);
}

void ExtensionEditDialog::importKeywords() {
    FileDialogRequest request;
    request.owner = window();
    request.title = LoadText(TextId::ImportKeywordsTitle).data();
    request.filters = {{FillText(TextId::TextFiles, {"*.txt"}), "*.txt"}, {FillText(TextId::AllFiles, {"*.*"}), "*.*"}};
    request.explorerStyle = options_.UseExplorer;
    const std::optional<std::string> answer = AskOpenFiles(request);
    if (!answer) return;
    model_.importFiles(SplitSelection(*answer), notices_);
    showKeywords(0);
}

}  // namespace vexa

#include "ui/search_dialog.h"

#include "ui/dialog_controls.h"

namespace vexa {
namespace {

struct CheckBox {
    int control;
    bool FindDialogModel::*value;
};
constexpr CheckBox kCheckBoxes[] = {
    {IDC_WHOLE_WORD, &FindDialogModel::wholeWord},
    {IDC_MATCH_CASE, &FindDialogModel::matchCase},
    {IDC_REGULAR_EXPRESSION, &FindDialogModel::regularExpression},
};

struct FieldCommand {
    CommandId command;
    UINT message;
    WPARAM first;
    LPARAM second;
};
constexpr FieldCommand kFieldCommands[] = {
    {CommandId::Undo, WM_UNDO, 0, 0},
    {CommandId::Cut, WM_CUT, 0, 0},
    {CommandId::Copy, WM_COPY, 0, 0},
    {CommandId::Paste, WM_PASTE, 0, 0},
    {CommandId::Clear, WM_CLEAR, 0, 0},
    {CommandId::Redo, EM_SETSEL, 0, -1},  // the key is Ctrl+A, which marks all of a field
};

bool IsTextField(HWND control) {
    return SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
}

}  // namespace

SearchDialog::SearchDialog(int dialog, Application& application, SearchHost& host)
    : EditorDialog(application.store, dialog),
      host_(host),
      findHistory_(application.directories.GetDirectory(kConfigDirectory), FindDialogModel::kFindHistoryFile) {}

// ---- fields ------------------------------------------------------------------------------------------------------

void SearchDialog::onOpen() {
    showFields();
    enableButtons();
}

void SearchDialog::showCombo(int control, const HistoryList& history, const std::string& text) {
    limitComboText(control, SearchOptions::kTextLimit);
    fillList(control, history.entries());
    setTextOf(control, text);
    markComboText(control);
}

void SearchDialog::showFields() {
    showCombo(IDC_FIND_TEXT, findHistory_, model().findText);
    for (const CheckBox& box : kCheckBoxes)
        setChecked(box.control, model().*box.value);
    checkRadio(IDC_SEARCH_UP, IDC_SEARCH_DOWN, model().forward ? IDC_SEARCH_DOWN : IDC_SEARCH_UP);
}

void SearchDialog::readFields() {
    model().findText = textOf(IDC_FIND_TEXT);
    for (const CheckBox& box : kCheckBoxes)
        model().*box.value = isChecked(box.control);
    model().forward = isChecked(IDC_SEARCH_DOWN);
}

void SearchDialog::enableButtons() {
    enable(IDOK, model().canSearch());
}

void SearchDialog::refreshOptions(const SearchOptions& options) {
    setChecked(IDC_MATCH_CASE, options.matchCase());
    setChecked(IDC_REGULAR_EXPRESSION, options.regularExpression());
}

bool SearchDialog::editField(CommandId command) {
    const HWND field = GetFocus();
    if (!window() || !IsChild(window(), field) || !IsTextField(field)) return false;
    for (const FieldCommand& row : kFieldCommands) {
        if (row.command != command) continue;
        SendMessageA(field, row.message, row.first, row.second);
        return true;
    }
    return false;
}

// ---- what the user does ------------------------------------------------------------------------------------------

// A text chosen from the list is told of before it stands in the field.
void SearchDialog::onControl(int control, UINT notification) {
    const bool isChosen = notification == CBN_SELCHANGE;
    if (control != IDC_FIND_TEXT || (!isChosen && notification != CBN_EDITCHANGE)) return;
    model().findText = isChosen ? chosenTextOf(control) : textOf(control);
    enableButtons();
}

// The lists have grown by the texts that were used.
void SearchDialog::run(const SearchHost::Search& search) {
    readFields();
    if (!model().canSearch()) return;
    host_.search(search);
    showFields();
}

void SearchDialog::onAccept() {
    run([this](EditView* active) { model().findNext(active); });
}

void SearchDialog::onCancel() {
    model().cancel();
    close(false);
}

void SearchDialog::onGone() {
    if (!host_.isShuttingDown()) saveHistories();
    host_.searchDialogGone();
}

}  // namespace vexa

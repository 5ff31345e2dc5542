#include "ui/dialogs/quick_help_dialog.h"

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

QuickHelpDialogWindow::QuickHelpDialogWindow(ConfigStore& store, const std::string& configDirectory, HelpLookup& lookup,
                                             Notices& notices, QuickHelpDialog kind)
    : EditorDialog(store, IDD_QUICK_HELP),
      history_(configDirectory, QuickHelpModel::kHistoryFile),
      model_(lookup, history_, notices),
      kind_(kind) {}

void QuickHelpDialogWindow::onOpen() {
    limitComboText(IDC_KEYWORD_SOUGHT, QuickHelpModel::kKeywordLimit);
    fillList(IDC_KEYWORD_SOUGHT, history_.entries());
    setTextOf(IDC_KEYWORD_SOUGHT, model_.keyword);
    showRows();
    if (kind_ == QuickHelpDialog::QuickHelp) {
        focusList();
        return;
    }
    SetWindowTextA(window(), LoadText(TextId::QuickSearchTitle).data());
    focusOn(IDC_KEYWORD_SOUGHT);
    markComboText(IDC_KEYWORD_SOUGHT);
}

void QuickHelpDialogWindow::showRows() {
    fillList(IDC_HELP_MATCHES, model_.rows());
    chooseRow(IDC_HELP_MATCHES, model_.chosenRow());
}

// Posted, since a dialog that opens gives its first field the keyboard afterwards.
void QuickHelpDialogWindow::focusList() {
    PostMessageA(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(IDC_HELP_MATCHES)), TRUE);
}

void QuickHelpDialogWindow::onAccept() {
    model_.keyword = textOf(IDC_KEYWORD_SOUGHT);
    const QuickHelpModel::Next next = model_.accept();
    if (next == QuickHelpModel::Next::Close) return close(true);
    showRows();
    if (next == QuickHelpModel::Next::FocusList) {
        focusList();
    } else {
        focusOn(IDC_KEYWORD_SOUGHT);
    }
}

void QuickHelpDialogWindow::onControl(int number, UINT notification) {
    static constexpr Notification<QuickHelpDialogWindow> kRows[] = {
        {IDC_HELP_MATCHES, LBN_SELCHANGE, &QuickHelpDialogWindow::matchChosen},
        {IDC_HELP_MATCHES, LBN_DBLCLK, &QuickHelpDialogWindow::onAccept},
    };
    Dispatch(*this, kRows, number, notification);
}

void QuickHelpDialogWindow::matchChosen() {
    if (const auto row = chosenRowOf(IDC_HELP_MATCHES)) model_.chooseRow(*row);
}

}  // namespace vexa

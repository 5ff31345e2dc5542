#include "ui/dialogs/document_choice_dialog.h"

#include <algorithm>
#include <iterator>

namespace vexa {
namespace {

constexpr int kButtons[] = {IDOK, IDC_CHOICE_SECOND, IDC_CHOICE_THIRD};

}  // namespace

void DocumentChoiceDialog::onOpen() {
    showTexts();
    showRows();
    refreshButtons();
}

void DocumentChoiceDialog::showTexts() {
    const DocumentChoice::Texts& texts = choice_.texts();
    SetWindowTextA(window(), LoadText(texts.caption).data());
    setTextOf(IDC_CHOICE_EXPLANATION, std::string(LoadText(texts.explanation)));
    for (std::size_t i = 0; i < texts.buttons.size(); ++i) {
        const bool isThere = i < texts.buttonCount;
        ShowWindow(control(kButtons[i]), isThere ? SW_SHOW : SW_HIDE);
        if (isThere) setTextOf(kButtons[i], std::string(LoadText(texts.buttons[i])));
    }
}

void DocumentChoiceDialog::showRows() {
    const std::vector<std::string> rows = choice_.rows();
    fillList(IDC_CHOICE_ROWS, rows);
    chosen_.resize(rows.size());
    std::size_t longest = 0;
    for (const std::string& row : rows)
        longest = std::max(longest, row.size());
    constexpr int kCharacter = 4;  // its mean width, in dialog units
    RECT extent{0, 0, static_cast<LONG>(longest) * kCharacter, 0};
    MapDialogRect(window(), &extent);
    SendMessageA(control(IDC_CHOICE_ROWS), LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent.right), 0);
    SendMessageA(control(IDC_CHOICE_ROWS), LB_SETSEL, TRUE, -1);
}

void DocumentChoiceDialog::refreshButtons() {
    const bool isAnyChosen = SendMessageA(control(IDC_CHOICE_ROWS), LB_GETSELCOUNT, 0, 0) > 0;
    for (const int button : kButtons)
        enable(button, isAnyChosen);
}

void DocumentChoiceDialog::onControl(int control, UINT notification) {
    if (control == IDC_CHOICE_ROWS && notification == LBN_SELCHANGE) refreshButtons();
    const auto* pressed = std::ranges::find(kButtons, control);
    if (pressed != std::end(kButtons) && notification == BN_CLICKED)
        press(static_cast<std::size_t>(pressed - std::begin(kButtons)));
}

void DocumentChoiceDialog::press(std::size_t button) {
    const HWND list = control(IDC_CHOICE_ROWS);
    button_ = button;
    for (std::size_t row = 0; row < chosen_.size(); ++row)
        chosen_[row] = SendMessageA(list, LB_GETSEL, row, 0) > 0 ? kChosen : '\0';
    close(true);
}

// What is done opens windows and asks questions, so the dialog is gone by then.
bool AskAboutDocuments(ConfigStore& store, DocumentChoice& choice, HWND owner) {
    while (!choice.rows().empty()) {
        DocumentChoiceDialog dialog(store, choice);
        if (!dialog.runModal(owner)) return false;
        const auto count = static_cast<std::size_t>(std::ranges::count(dialog.chosen(), DocumentChoiceDialog::kChosen));
        if (!choice.mayAct(dialog.button(), count)) continue;
        std::size_t row = 0;
        for (const char chosen : dialog.chosen()) {
            if (chosen == DocumentChoiceDialog::kChosen) {
                choice.act(dialog.button(), row);
            } else {
                ++row;
            }
        }
    }
    return true;
}

}  // namespace vexa

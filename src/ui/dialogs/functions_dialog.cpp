#include "ui/dialogs/functions_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr UINT kNameColumn = 28;  // after the line number, in dialog units
constexpr std::size_t kFilterCharacters = 60;

}  // namespace

FunctionsDialog::FunctionsDialog(ConfigStore& store, FunctionListModel& model)
    : EditorDialog(store, IDD_FUNCTIONS), model_(model) {}

void FunctionsDialog::onOpen() {
    limitTextOf(IDC_FUNCTION_FILTER, kFilterCharacters);
    SendMessageA(control(IDC_FUNCTIONS), LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&kNameColumn));
    moveListFrom(IDC_FUNCTION_FILTER, IDC_FUNCTIONS);
    showRows();
}

void FunctionsDialog::showRows() {
    fillList(IDC_FUNCTIONS, model_.rows());
    const auto chosen = model_.chosenRow();
    if (chosen) chooseRow(IDC_FUNCTIONS, *chosen);
    enable(IDOK, chosen.has_value());
}

void FunctionsDialog::onAccept() {
    if (model_.chosenRow()) close(true);
}

void FunctionsDialog::onControl(int control, UINT notification) {
    static constexpr Notification<FunctionsDialog> kRows[] = {
        {IDC_FUNCTION_FILTER, EN_CHANGE, &FunctionsDialog::filterTyped},
        {IDC_FUNCTIONS, LBN_SELCHANGE, &FunctionsDialog::functionChosen},
        {IDC_FUNCTIONS, LBN_DBLCLK, &FunctionsDialog::onAccept},
    };
    Dispatch(*this, kRows, control, notification);
}

void FunctionsDialog::filterTyped() {
    model_.setFilter(textOf(IDC_FUNCTION_FILTER));
    showRows();
}

void FunctionsDialog::functionChosen() {
    if (const auto row = chosenRowOf(IDC_FUNCTIONS)) model_.chooseRow(*row);
}

}  // namespace vexa

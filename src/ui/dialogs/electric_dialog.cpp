#include "ui/dialogs/electric_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

ElectricDialog::ElectricDialog(ConfigStore& store, ElectricWords& words)
    : EditorDialog(store, IDD_ELECTRIC), model_(words) {}

void ElectricDialog::onOpen() {
    limitTextOf(IDC_ELECTRIC_KEYWORD, kElectricKeywordLimit);
    limitTextOf(IDC_ELECTRIC_EXPANSION, kElectricExpansionLimit);
    showEntries();
}

void ElectricDialog::read() {
    model_.keyword = textOf(IDC_ELECTRIC_KEYWORD);
    model_.expansion = textOf(IDC_ELECTRIC_EXPANSION);
}

void ElectricDialog::showEntries() {
    fillList(IDC_ELECTRIC_KEYWORDS, model_.keywords());
    showFields();
}

void ElectricDialog::showFields() {
    setTextOf(IDC_ELECTRIC_EXPANSION, model_.expansion);
    setTextOf(IDC_ELECTRIC_KEYWORD, model_.keyword);
    refreshChoice();
}

void ElectricDialog::refreshChoice() {
    constexpr auto kNoRow = static_cast<std::size_t>(-1);
    chooseRow(IDC_ELECTRIC_KEYWORDS, model_.chosen().value_or(kNoRow));
    enable(IDC_ELECTRIC_DELETE, model_.canRemove());
}

void ElectricDialog::onControl(int control, UINT notification) {
    static constexpr Notification<ElectricDialog> kRows[] = {
        {IDC_ELECTRIC_KEYWORDS, LBN_SELCHANGE, &ElectricDialog::keywordChosen},
        {IDC_ELECTRIC_KEYWORD, EN_CHANGE, &ElectricDialog::keywordTyped},
        {IDC_ELECTRIC_SET, BN_CLICKED, &ElectricDialog::set},
        {IDC_ELECTRIC_DELETE, BN_CLICKED, &ElectricDialog::remove},
    };
    Dispatch(*this, kRows, control, notification);
}

void ElectricDialog::keywordChosen() {
    if (const auto row = chosenRowOf(IDC_ELECTRIC_KEYWORDS)) model_.choose(*row);
    showFields();
}

void ElectricDialog::keywordTyped() {
    model_.keyword = textOf(IDC_ELECTRIC_KEYWORD);
    refreshChoice();
}

void ElectricDialog::set() {
    read();
    if (isRefused(model_.set())) return;
    showEntries();
    focusOn(IDC_ELECTRIC_KEYWORD);
}

void ElectricDialog::remove() {
    model_.remove();
    showEntries();
    focusOn(IDC_ELECTRIC_KEYWORD);
}

void ElectricDialog::onAccept() {
    read();
    if (!isRefused(model_.update())) close(true);
}

bool ElectricDialog::isRefused(const std::optional<std::string>& refusal) {
    if (!refusal) return false;
    tell(*refusal);
    focusOn(model_.keyword.empty() ? IDC_ELECTRIC_KEYWORD : IDC_ELECTRIC_EXPANSION);
    return true;
}

}  // namespace vexa

#include "ui/print/page_setup_dialog.h"

#include "base/notices.h"
#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "framework/message_box.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr CheckBox<PageSetupModel> kSwitches[] = {
    {IDC_PRINT_COLORS, &PageSetupModel::colours},
    {IDC_PRINT_LINE_NUMBERS, &PageSetupModel::lineNumbers},
    {IDC_PRINT_HEADER, &PageSetupModel::header},
};

constexpr std::size_t kLengthLimit = 7;  // characters

using Margins = PageSetupModel::Margins;
constexpr TextField<Margins> kMargins[] = {
    {IDC_MARGIN_LEFT, &Margins::left, kLengthLimit},
    {IDC_MARGIN_TOP, &Margins::top, kLengthLimit},
    {IDC_MARGIN_RIGHT, &Margins::right, kLengthLimit},
    {IDC_MARGIN_BOTTOM, &Margins::bottom, kLengthLimit},
};

// The unit that the user has set in the system.
LengthUnit UsersUnit() {
    char measure[4] = "";
    GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_IMEASURE, measure, sizeof(measure));
    return measure[0] == '1' ? LengthUnit::Inches : LengthUnit::Millimetres;
}

}  // namespace

PageSetupDialog::PageSetupDialog(ConfigStore& store, PrintOptions& options, PrinterChoice& printer)
    : EditorDialog(store, IDD_PAGE_SETUP), options_(options), printer_(printer), model_(options, UsersUnit()) {}

void PageSetupDialog::onOpen() {
    setTextOf(IDC_MARGINS, FillText(TextId::MarginsIn, {NameOf(model_.unit)}));
    ShowFields(*this, model_.margins, kMargins);
    ShowFields(*this, model_, kSwitches);
}

void PageSetupDialog::read() {
    ReadFields(*this, model_.margins, kMargins);
    ReadFields(*this, model_, kSwitches);
}

void PageSetupDialog::onAccept() {
    read();
    const auto bad = model_.badMargin();
    if (!bad) {
        model_.update(options_);
        return close(true);
    }
    tell(model_.refusal());
    for (const TextField<Margins>& field : kMargins) {
        if (field.value == *bad) focusOn(field.control);
    }
}

void PageSetupDialog::onControl(int control, UINT notification) {
    static constexpr Notification<PageSetupDialog> kRows[] = {
        {IDC_PRINTER, BN_CLICKED, &PageSetupDialog::setUpPrinter},
    };
    Dispatch(*this, kRows, control, notification);
}

void PageSetupDialog::setUpPrinter() {
    const PrinterAnswer answer = printer_.setUp(window());
    if (answer == PrinterAnswer::NoPrinter) tell(std::string(LoadText(TextId::NoPrinter)));
    if (answer == PrinterAnswer::Failed) tell(std::string(LoadText(TextId::PrinterDoesNotAnswer)));
}

void PageSetupDialog::tell(const std::string& text) const {
    ShowBox(window(), text, std::string(LoadText(TextId::ErrorCaption)), MB_OK);
}

}  // namespace vexa

#include "ui/print/page_setup_dialog.h"

#include "base/notices.h"
#include "base/strings.h"
#include "framework/message_box.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

struct CheckBox {
    int control;
    bool PageSetupModel::*value;
};
constexpr CheckBox kCheckBoxes[] = {
    {IDC_PRINT_COLORS, &PageSetupModel::colours},
    {IDC_PRINT_LINE_NUMBERS, &PageSetupModel::lineNumbers},
    {IDC_PRINT_HEADER, &PageSetupModel::header},
};

constexpr std::size_t kLengthLimit = 7;  // characters

struct Field {
    int control;
    std::string PageSetupModel::Margins::*value;
};
constexpr Field kFields[] = {
    {IDC_MARGIN_LEFT, &PageSetupModel::Margins::left},
    {IDC_MARGIN_TOP, &PageSetupModel::Margins::top},
    {IDC_MARGIN_RIGHT, &PageSetupModel::Margins::right},
    {IDC_MARGIN_BOTTOM, &PageSetupModel::Margins::bottom},
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
    for (const Field& field : kFields) {
        limitTextOf(field.control, kLengthLimit);
        setTextOf(field.control, model_.margins.*field.value);
    }
    for (const CheckBox& box : kCheckBoxes)
        setChecked(box.control, model_.*box.value);
}

void PageSetupDialog::read() {
    for (const Field& field : kFields)
        model_.margins.*field.value = textOf(field.control);
    for (const CheckBox& box : kCheckBoxes)
        model_.*box.value = isChecked(box.control);
}

void PageSetupDialog::onAccept() {
    read();
    const auto bad = model_.badMargin();
    if (!bad) {
        model_.update(options_);
        return close(true);
    }
    tell(model_.refusal());
    for (const Field& field : kFields) {
        if (field.value == *bad) focusOn(field.control);
    }
}

void PageSetupDialog::onControl(int control, UINT notification) {
    if (control == IDC_PRINTER && notification == BN_CLICKED) setUpPrinter();
}

void PageSetupDialog::setUpPrinter() {
    const PrinterAnswer answer = printer_.setUp(window());
    if (answer == PrinterAnswer::NoPrinter) tell(std::string(LoadText(TextId::NoPrinter)));
    if (answer == PrinterAnswer::Failed) tell(std::string(LoadText(TextId::PrinterDoesNotAnswer)));
}

void PageSetupDialog::tell(const std::string& text) const {
    ShowBox(window(), text, std::string(kErrorCaption), MB_OK);
}

}  // namespace vexa

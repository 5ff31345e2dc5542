#include "ui/dialogs/colour_setup_dialog.h"

#include "framework/dialog_fields.h"
#include "framework/gdi.h"
#include "ui/dialogs/colour_sample.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr LONG kColourRowHeight = 10;  // dialog units

template <class Position, std::string_view (*name)(Position)>
std::vector<std::string> Names(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i)
        names.emplace_back(name(static_cast<Position>(i)));
    return names;
}

// A rectangle of the colour, framed so that it can be told from a background of the same colour.
void DrawSwatch(HDC dc, RECT area, Rgb colour) {
    FillColour(dc, area, RGB(0, 0, 0));
    InflateRect(&area, -1, -1);
    FillColour(dc, area, ColourRef(colour));
}

void DrawColour(const DRAWITEMSTRUCT& item) {
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    const RECT& row = item.rcItem;
    FillColour(item.hDC, row, GetSysColor(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const LONG height = row.bottom - row.top;
    const RECT swatch = {row.left + 3, row.top + 2, row.left + 3 + 2 * height, row.bottom - 2};
    const auto index = static_cast<std::int32_t>(item.itemID);
    const std::string name(PaletteName(index));
    DrawSwatch(item.hDC, swatch, kPalette[index]);
    SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    SetBkMode(item.hDC, TRANSPARENT);
    RECT rest = {swatch.right + 5, row.top, row.right, row.bottom};
    DrawTextA(item.hDC, name.c_str(), -1, &rest, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &row);
}

}  // namespace

ColourSetupDialog::ColourSetupDialog(ConfigStore& store, const ColourTable& inEffect, const FontDetails& font,
                                     Preview preview)
    : EditorDialog(store, IDD_COLOUR_SETUP),
      font_(font),
      preview_(preview),
      model_(inEffect),
      sampleColours_(model_.working()),
      painter_(sampleColours_) {}

void ColourSetupDialog::onOpen() {
    painter_.setFont(MakePaneFont(font_, window()));
    fillList(IDC_PRESETS, Names<ColourPreset, &PresetName>(kPresetCount));
    fillList(IDC_ELEMENTS, Names<ColourElement, &ElementName>(kElementCount));
    RECT row = {0, 0, 1, kColourRowHeight};
    MapDialogRect(window(), &row);
    SendMessageA(control(IDC_COLOURS), LB_SETITEMHEIGHT, 0, row.bottom);
    fillList(IDC_COLOURS, Names<std::int32_t, &PaletteName>(kPaletteSize));
    setChecked(IDC_HIGHLIGHTING, model_.isHighlightingOn());
    showChoice();
}

void ColourSetupDialog::showChoice() {
    chooseRow(IDC_PRESETS, static_cast<std::size_t>(model_.preset()));
    chooseRow(IDC_ELEMENTS, static_cast<std::size_t>(model_.element()));
    chooseRow(IDC_COLOURS, static_cast<std::size_t>(model_.colour()));
    setTextOf(IDC_CONTRAST, model_.contrastText());
    InvalidateRect(control(IDC_COLOUR_SAMPLE), nullptr, FALSE);
}

// ---- choosing ----------------------------------------------------------------------------------------------------

void ColourSetupDialog::onControl(int control, UINT notification) {
    static constexpr Notification<ColourSetupDialog> kRows[] = {
        {IDC_PRESETS, CBN_SELCHANGE, &ColourSetupDialog::choosePreset},
        {IDC_ELEMENTS, LBN_SELCHANGE, &ColourSetupDialog::chooseElement},
        {IDC_COLOURS, LBN_SELCHANGE, &ColourSetupDialog::chooseColour},
        {IDC_HIGHLIGHTING, BN_CLICKED, &ColourSetupDialog::switchHighlighting},
    };
    if (!Dispatch(*this, kRows, control, notification)) return;
    showChoice();
    preview_(model_.working());
}

void ColourSetupDialog::choosePreset() {
    if (const auto row = chosenRowOf(IDC_PRESETS)) model_.choosePreset(static_cast<ColourPreset>(*row));
}

void ColourSetupDialog::chooseElement() {
    if (const auto row = chosenRowOf(IDC_ELEMENTS)) model_.chooseElement(static_cast<ColourElement>(*row));
}

void ColourSetupDialog::chooseColour() {
    if (const auto row = chosenRowOf(IDC_COLOURS)) model_.chooseColour(static_cast<std::int32_t>(*row));
}

void ColourSetupDialog::switchHighlighting() {
    model_.setHighlighting(isChecked(IDC_HIGHLIGHTING));
}

// ---- drawing -----------------------------------------------------------------------------------------------------

bool ColourSetupDialog::onDrawItem(const DRAWITEMSTRUCT& item) {
    if (item.CtlID == IDC_COLOUR_SAMPLE) {
        drawSample(item);
    } else if (item.itemID < static_cast<UINT>(kPaletteSize)) {
        DrawColour(item);
    }
    return true;
}

void ColourSetupDialog::drawSample(const DRAWITEMSTRUCT& item) {
    int top = 0;
    for (const ViewRow& row : ColourSampleRows(model_.isHighlightingOn())) {
        painter_.paint(item.hDC, top, item.rcItem.right, row);
        top += painter_.cellHeight();
    }
    const RECT below = {0, top, item.rcItem.right, item.rcItem.bottom};
    if (below.top < below.bottom) FillColour(item.hDC, below, sampleColours_.colourOf(ColourElement::Background));
}

}  // namespace vexa

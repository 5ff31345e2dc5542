#include "ui/dialogs/extended_dialog.h"

#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr CheckBox<Habits> kHabits[] = {
    {IDC_KEEP_FILES, &Habits::keepFiles},           {IDC_LARGE_FILES, &Habits::largeFiles},
    {IDC_LARGE_CLIPBOARD, &Habits::largeClipboard}, {IDC_WHOLE_SESSION, &Habits::wholeSession},
    {IDC_LANGUAGE_QUOTES, &Habits::languageQuotes}, {IDC_REPLACEMENT_GROUPS, &Habits::replacementGroups},
    {IDC_SEARCH_AROUND, &Habits::searchAround},     {IDC_KEEP_MARKING, &Habits::keepMarking},
};
constexpr CheckBox<EditorOptions> kExplorer[] = {{IDC_EXPLORER_OPEN, &EditorOptions::UseExplorer}};

}  // namespace

ExtendedDialog::ExtendedDialog(ConfigStore& store, EditorOptions& options)
    : EditorDialog(store, IDD_EXTENDED), options_(options) {}

void ExtendedDialog::onOpen() {
    ShowFields(*this, options_.habits, kHabits);
    ShowFields(*this, options_, kExplorer);
}

void ExtendedDialog::onAccept() {
    ReadFields(*this, options_.habits, kHabits);
    ReadFields(*this, options_, kExplorer);
    close(true);
}

void ExtendedDialog::checkAll(bool checked) {
    for (int box = IDC_KEEP_FILES; box <= IDC_EXPLORER_OPEN; ++box)
        setChecked(box, checked);
}

void ExtendedDialog::onControl(int control, UINT notification) {
    static constexpr Notification<ExtendedDialog> kRows[] = {
        {IDC_ALL_HABITS, BN_CLICKED, &ExtendedDialog::all},
        {IDC_NO_HABITS, BN_CLICKED, &ExtendedDialog::none},
    };
    Dispatch(*this, kRows, control, notification);
}

}  // namespace vexa

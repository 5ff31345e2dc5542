#include "ui/dialogs/editor_options_dialog.h"

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

using Options = EditorOptions;
using Model = EditorOptionsModel;

// A new option is a field of the record, its key in the settings, and the row of its control here.
constexpr CheckBox<Options> kSwitches[] = {
    {IDC_LINE_WRAP, &Options::LineWrap},
    {IDC_AUTO_BACKUP, &Options::AutoBackup},
    {IDC_RESTORE_DIRECTORY, &Options::RestoreDirectory},
    {IDC_RESTORE_FILES, &Options::RestoreFiles},
    {IDC_SMART_INDENT, &Options::SmartIndent},
    {IDC_HAS_MARGIN, &Options::HasMargin},
    {IDC_LINE_NUMBERS, &Options::LineNumbers},
    {IDC_RESTORE_SIZE, &Options::RestoreSize},
    {IDC_MULTIPLE_COPIES, &Options::MultipleCopies},
    {IDC_FILE_READ, &Options::FileRead},
    {IDC_FILE_WRITE, &Options::FileWrite},
};
constexpr TextField<Options> kFilters[] = {
    {IDC_FILTER_1, &Options::Filter1, kFilterFieldLimit},
    {IDC_FILTER_2, &Options::Filter2, kFilterFieldLimit},
};
constexpr RadioButton<Options, std::int32_t> kDisplayModes[] = {
    {IDC_CREATE_MAXIMIZED, &Options::DisplayMode, kCreateMaximized},
    {IDC_CREATE_MINIMIZED, &Options::DisplayMode, kCreateMinimized},
    {IDC_CREATE_TILED, &Options::DisplayMode, kCreateTiled},
    {IDC_CREATE_DEFAULT, &Options::DisplayMode, kCreateDefault},
};

constexpr std::size_t kNumberFieldLimit = 9;

// What the dialog shows otherwise than the record has it.
constexpr CheckBox<Model> kTabs[] = {{IDC_TABS_AS_SPACES, &Model::tabsAsSpaces}};
constexpr TextField<Model> kNumbers[] = {
    {IDC_TAB_SIZE, &Model::tabSize, kNumberFieldLimit},
    {IDC_WRAP_COLUMN, &Model::wrapColumn, kNumberFieldLimit},
    {IDC_BACKUP_INTERVAL, &Model::backupInterval, kNumberFieldLimit},
};

}  // namespace

EditorOptionsDialog::EditorOptionsDialog(ConfigStore& store, EditorOptions& options)
    : EditorDialog(store, IDD_EDITOR_OPTIONS), options_(options), model_(options) {}

void EditorOptionsDialog::onOpen() {
    ShowFields(*this, model_.options, kSwitches, kFilters, kDisplayModes);
    ShowFields(*this, model_, kTabs, kNumbers);
    enableFields();
}

void EditorOptionsDialog::read() {
    ReadFields(*this, model_.options, kSwitches, kFilters, kDisplayModes);
    ReadFields(*this, model_, kTabs, kNumbers);
}

void EditorOptionsDialog::enableFields() {
    enable(IDC_WRAP_COLUMN, model_.wrapColumnEnabled());
    enable(IDC_BACKUP_INTERVAL, model_.backupIntervalEnabled());
    enable(IDC_LINE_NUMBERS, model_.lineNumbersEnabled());
}

void EditorOptionsDialog::onControl(int /*control*/, UINT notification) {
    if (notification != BN_CLICKED) return;
    read();
    enableFields();
}

void EditorOptionsDialog::onAccept() {
    read();
    if (const auto refusal = model_.update(options_)) {
        tell(std::string(LoadText(*refusal)));
        focusOn(IDC_TAB_SIZE);
        return;
    }
    close(true);
}

}  // namespace vexa

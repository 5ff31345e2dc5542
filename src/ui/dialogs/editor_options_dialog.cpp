#include "ui/dialogs/editor_options_dialog.h"

#include "base/strings.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

struct CheckBox {
    int control;
    bool EditorOptionsModel::*value;
};
constexpr CheckBox kCheckBoxes[] = {
    {IDC_TABS_AS_SPACES, &EditorOptionsModel::tabsAsSpaces},
    {IDC_LINE_WRAP, &EditorOptionsModel::lineWrap},
    {IDC_AUTO_BACKUP, &EditorOptionsModel::autoBackup},
    {IDC_RESTORE_DIRECTORY, &EditorOptionsModel::restoreDirectory},
    {IDC_RESTORE_FILES, &EditorOptionsModel::restoreFiles},
    {IDC_SMART_INDENT, &EditorOptionsModel::smartIndent},
    {IDC_HAS_MARGIN, &EditorOptionsModel::hasMargin},
    {IDC_LINE_NUMBERS, &EditorOptionsModel::lineNumbers},
    {IDC_RESTORE_SIZE, &EditorOptionsModel::restoreSize},
    {IDC_MULTIPLE_COPIES, &EditorOptionsModel::multipleCopies},
    {IDC_FILE_READ, &EditorOptionsModel::fileRead},
    {IDC_FILE_WRITE, &EditorOptionsModel::fileWrite},
};

constexpr std::size_t kNumberFieldLimit = 9;

struct Field {
    int control;
    std::string EditorOptionsModel::*value;
    std::size_t limit;
};
constexpr Field kFields[] = {
    {IDC_TAB_SIZE, &EditorOptionsModel::tabSize, kNumberFieldLimit},
    {IDC_WRAP_COLUMN, &EditorOptionsModel::wrapColumn, kNumberFieldLimit},
    {IDC_BACKUP_INTERVAL, &EditorOptionsModel::backupInterval, kNumberFieldLimit},
    {IDC_FILTER_1, &EditorOptionsModel::filter1, kFilterFieldLimit},
    {IDC_FILTER_2, &EditorOptionsModel::filter2, kFilterFieldLimit},
};

struct ModeButton {
    int control;
    DisplayModeValue mode;
};
constexpr ModeButton kModeButtons[] = {
    {IDC_CREATE_MAXIMIZED, kCreateMaximized},
    {IDC_CREATE_MINIMIZED, kCreateMinimized},
    {IDC_CREATE_TILED, kCreateTiled},
    {IDC_CREATE_DEFAULT, kCreateDefault},
};

}  // namespace

EditorOptionsDialog::EditorOptionsDialog(ConfigStore& store, EditorOptions& options)
    : EditorDialog(store, IDD_EDITOR_OPTIONS), options_(options), model_(options) {}

void EditorOptionsDialog::onOpen() {
    for (const CheckBox& box : kCheckBoxes)
        setChecked(box.control, model_.*box.value);
    for (const Field& field : kFields) {
        limitTextOf(field.control, field.limit);
        setTextOf(field.control, model_.*field.value);
    }
    for (const ModeButton& button : kModeButtons) {
        if (button.mode == model_.displayMode) checkRadio(IDC_CREATE_MAXIMIZED, IDC_CREATE_DEFAULT, button.control);
    }
    enableFields();
}

void EditorOptionsDialog::read() {
    for (const CheckBox& box : kCheckBoxes)
        model_.*box.value = isChecked(box.control);
    for (const Field& field : kFields)
        model_.*field.value = textOf(field.control);
    for (const ModeButton& button : kModeButtons) {
        if (isChecked(button.control)) model_.displayMode = button.mode;
    }
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

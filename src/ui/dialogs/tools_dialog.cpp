#include "ui/dialogs/tools_dialog.h"

#include <iterator>

#include "base/platform.h"
#include "base/scoped_flag.h"
#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "framework/file_dialog.h"
#include "ui/dialogs/file_selection.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr RadioButton<ToolsModel, ProgramKind> kKinds[] = {
    {IDC_TOOL_DOS, &ToolsModel::kind, ProgramKind::Dos},
    {IDC_TOOL_WINDOWS, &ToolsModel::kind, ProgramKind::Windows},
    {IDC_TOOL_COMMAND_LINE, &ToolsModel::kind, ProgramKind::Interpreter},
};
constexpr RadioButton<ToolsModel, ShowMode> kShowModes[] = {
    {IDC_TOOL_NORMAL, &ToolsModel::showMode, ShowMode::Normal},
    {IDC_TOOL_HIDDEN, &ToolsModel::showMode, ShowMode::Hidden},
    {IDC_TOOL_MINIMISED, &ToolsModel::showMode, ShowMode::Minimised},
    {IDC_TOOL_MAXIMISED, &ToolsModel::showMode, ShowMode::Maximised},
};
constexpr CheckBox<ToolsModel> kOptions[] = {
    {IDC_TOOL_CAPTURE, &ToolsModel::capture},
    {IDC_TOOL_ASK, &ToolsModel::askForArguments},
};
constexpr TextField<ToolsModel> kTexts[] = {
    {IDC_TOOL_PROGRAM, &ToolsModel::program, ProgramRequest::kTextLimit},
    {IDC_TOOL_MENU_TEXT, &ToolsModel::menuText, ProgramRequest::kMenuTextLimit},
    {IDC_TOOL_ARGUMENTS, &ToolsModel::arguments, ProgramRequest::kTextLimit},
    {IDC_TOOL_DIRECTORY, &ToolsModel::directory, ProgramRequest::kTextLimit},
};

}  // namespace

ToolsDialog::ToolsDialog(Application& application, Notices& notices, ToolList& tools, Changed changed)
    : EditorDialog(application.store, IDD_TOOLS),
      application_(application),
      changed_(changed),
      model_(tools, notices, platform::EnvironmentValue("PATH")) {}

void ToolsDialog::onOpen() {
    showTools();
}

void ToolsDialog::showTools() {
    constexpr auto kNoRow = static_cast<std::size_t>(-1);
    fillList(IDC_TOOLS, model_.menuTexts());
    chooseRow(IDC_TOOLS, model_.selected().value_or(kNoRow));
    showFields();
}

void ToolsDialog::showFields() {
    {
        const ScopedFlag showing(isShowing_);
        ShowFields(*this, model_, kKinds, kShowModes, kOptions, kTexts);
    }
    refreshButtons();
}

// A button with the focus that is switched off would leave the keyboard without a control to go to.
void ToolsDialog::refreshButtons() {
    const bool losesFocus = GetFocus() == control(IDC_TOOL_DELETE) && !model_.canDelete();
    if (losesFocus) SetFocus(control(IDC_TOOLS));
    enable(IDOK, model_.canAdd());
    enable(IDC_TOOL_UPDATE, model_.canUpdate());
    enable(IDC_TOOL_DELETE, model_.canDelete());
}

void ToolsDialog::onControl(int control, UINT notification) {
    static constexpr Notification<ToolsDialog> kRows[] = {
        {IDC_TOOLS, LBN_SELCHANGE, &ToolsDialog::toolChosen},
        {IDC_TOOL_MENU_TEXT, EN_CHANGE, &ToolsDialog::menuTextTyped},
        {IDC_TOOL_FIND, BN_CLICKED, &ToolsDialog::find},
        {IDC_TOOL_UPDATE, BN_CLICKED, &ToolsDialog::update},
        {IDC_TOOL_DELETE, BN_CLICKED, &ToolsDialog::remove},
    };
    Dispatch(*this, kRows, control, notification);
}

void ToolsDialog::toolChosen() {
    if (const auto row = chosenRowOf(IDC_TOOLS)) model_.select(*row);
    showFields();
}

void ToolsDialog::menuTextTyped() {
    if (isShowing_) return;
    model_.menuText = textOf(IDC_TOOL_MENU_TEXT);
    refreshButtons();
}

void ToolsDialog::find() {
    FileDialogRequest request;
    request.owner = window();
    request.title = LoadText(TextId::FindToolTitle).data();
    request.filters = {{FillText(TextId::ExeFiles, {"*.exe"}), "*.exe"}, {FillText(TextId::AllFiles, {"*.*"}), "*.*"}};
    request.explorerStyle = application_.options.UseExplorer;
    const std::optional<std::string> answer = AskOpenFiles(request);
    if (!answer) return;
    ReadFields(*this, model_, kKinds, kShowModes, kOptions, kTexts);
    model_.takeFoundProgram(SplitSelection(*answer).front());
    showFields();
    focusOn(IDC_TOOL_MENU_TEXT);
}

void ToolsDialog::change(ToolsModel::Outcome (ToolsModel::*how)()) {
    using Outcome = ToolsModel::Outcome;
    ReadFields(*this, model_, kKinds, kShowModes, kOptions, kTexts);
    const Outcome outcome = (model_.*how)();
    if (outcome == Outcome::StayAtProgram) focusOn(IDC_TOOL_PROGRAM);
    if (outcome == Outcome::StayAtDirectory) focusOn(IDC_TOOL_DIRECTORY);
    if (outcome != Outcome::Changed) return;
    showTools();
    changed_();
}

}  // namespace vexa

// The commands that the frame carries out.
#include "base/strings.h"
#include "document/view/bookmark_model.h"
#include "document/view/goto_line_model.h"
#include "framework/dpi.h"
#include "framework/file_dialog.h"
#include "framework/font_dialog.h"
#include "framework/message_box.h"
#include "ui/dialogs/editor_options_dialog.h"
#include "ui/dialogs/file_selection.h"
#include "ui/dialogs/number_dialog.h"
#include "ui/document/pane_font.h"
#include "ui/frame/for_each_document.h"
#include "ui/frame/vexa_frame.h"
#include "ui/help/help.h"
#include "ui/resources/dialog_controls.h"
#include "ui/resources/resource.h"

namespace vexa {

struct FrameCommands {
    struct Row {
        CommandId id;
        void (VexaFrame::*run)();
    };
    static constexpr Row kRows[] = {
        {CommandId::FileNew, &VexaFrame::newDocument},
        {CommandId::FileOpen, &VexaFrame::openDocuments},
        {CommandId::FileClose, &VexaFrame::closeDocument},
        {CommandId::FileSave, &VexaFrame::saveDocument},
        {CommandId::FileSaveAs, &VexaFrame::saveDocumentAs},
        {CommandId::FileSaveAll, &VexaFrame::saveAllDocuments},
        {CommandId::PrintSetup, &VexaFrame::setUpPrinting},
        {CommandId::Print, &VexaFrame::printDocument},
        {CommandId::Exit, &VexaFrame::exit},
        {CommandId::Undo, &VexaFrame::undo},
        {CommandId::Redo, &VexaFrame::redo},
        {CommandId::Cut, &VexaFrame::cut},
        {CommandId::Copy, &VexaFrame::copy},
        {CommandId::Paste, &VexaFrame::paste},
        {CommandId::Clear, &VexaFrame::clear},
        {CommandId::ChangeColours, &VexaFrame::changeColours},
        {CommandId::ChangeFont, &VexaFrame::changeFont},
        {CommandId::ChangeElectric, &VexaFrame::changeElectric},
        {CommandId::ChangeExtensions, &VexaFrame::changeExtensions},
        {CommandId::ToggleCase, &VexaFrame::changeCase<CaseChange::Toggle>},
        {CommandId::LowerCase, &VexaFrame::changeCase<CaseChange::Lower>},
        {CommandId::UpperCase, &VexaFrame::changeCase<CaseChange::Upper>},
        {CommandId::OpenInclude, &VexaFrame::openInclude},
        {CommandId::SelectAll, &VexaFrame::selectAll},
        {CommandId::CloseAll, &VexaFrame::closeAllDocuments},
        {CommandId::NextWindow, &VexaFrame::activateNext},
        {CommandId::PreviousWindow, &VexaFrame::activatePrevious},
        {CommandId::GotoLine, &VexaFrame::gotoLine},
        {CommandId::GotoBookmark, &VexaFrame::gotoBookmark},
        {CommandId::ChangeOptions, &VexaFrame::changeOptions},
        {CommandId::PlayMacro, &VexaFrame::playMacro},
        {CommandId::RepeatMacro, &VexaFrame::repeatMacro},
        {CommandId::HelpOnHelp, &VexaFrame::helpOnHelp},
        {CommandId::HelpIndex, &VexaFrame::helpIndex},
        {CommandId::HelpOnKeys, &VexaFrame::helpOnKeys},
        {CommandId::MatchingBracket, &VexaFrame::toMatchingBracket},
        {CommandId::About, &VexaFrame::showAbout},
        {CommandId::WindowStart, &VexaFrame::toWindowStart},
        {CommandId::Find, &VexaFrame::find},
        {CommandId::Replace, &VexaFrame::replace},
        {CommandId::FindNext, &VexaFrame::findNext},
        {CommandId::FindPrevious, &VexaFrame::findPrevious},
        {CommandId::WindowEnd, &VexaFrame::toWindowEnd},
        {CommandId::DocumentStart, &VexaFrame::toDocumentStart},
        {CommandId::DocumentEnd, &VexaFrame::toDocumentEnd},
    };

    struct ArrangementRow {
        CommandId id;
        Arrangement arrangement;
    };
    static constexpr ArrangementRow kArrangements[] = {
        {CommandId::Cascade, Arrangement::Cascade},
        {CommandId::Tile, Arrangement::Tile},
        {CommandId::TileVertically, Arrangement::TileVertically},
        {CommandId::TileHorizontally, Arrangement::TileHorizontally},
        {CommandId::ArrangeIcons, Arrangement::Icons},
    };
};

void VexaFrame::registerCommands() {
    for (const auto& row : FrameCommands::kRows) {
        dispatcher_.RegisterCommand(row.id, [this, run = row.run](CommandId) { (this->*run)(); });
    }
    for (const auto& row : FrameCommands::kArrangements) {
        dispatcher_.RegisterCommand(row.id, [this, how = row.arrangement](CommandId) { arrange(how); });
    }
    for (const CommandId id : {CommandId::FirstRecentFile, CommandId::SecondRecentFile}) {
        dispatcher_.RegisterCommand(id, [this](CommandId chosen) { openRecentFile(chosen); });
    }
    dispatcher_.RegisterToggle(
        CommandId::RecordMacro, [this](CommandId) { macro_.toggleRecording(); },
        [this] { return macro_.isRecording(); });
    dispatcher_.RegisterToggle(
        CommandId::ToggleToolBar, [this](CommandId) { toggleToolBar(); },
        [this] { return application_.options.ToolBar; });
    dispatcher_.RegisterToggle(
        CommandId::ToggleStatusBar, [this](CommandId) { toggleStatusBar(); },
        [this] { return application_.options.StatusBar; });
}

// ---- files -------------------------------------------------------------------------------------------------------

void VexaFrame::openDocuments() {
    FileDialogRequest request;
    request.owner = window();
    request.title = LoadText(TextId::OpenTitle).data();
    for (const FileKind& kind : OfferedFileKinds(application_.options))
        request.filters.push_back({kind.label, kind.patterns});
    request.explorerStyle = application_.options.UseExplorer;
    const std::optional<std::string> answer = AskOpenFiles(request);
    if (!answer) return;
    const std::vector<std::string> paths = SplitSelection(*answer);
    const DrawingPause pause = pauseFor(paths.size());
    for (const std::string& path : paths)
        opening_.OpenFileAtLine(path, 0);
}

void VexaFrame::openRecentFile(CommandId id) {
    const std::string path = recentFiles_.path(id);
    if (!path.empty()) opening_.OpenFileAtLine(path, 0);
}

void VexaFrame::closeDocument() {
    closeChild(*activeDocument());
}

void VexaFrame::saveDocument() {
    DocumentWindow& active = *activeDocument();
    files_.save(active.document());
    active.refresh();
}

void VexaFrame::saveDocumentAs() {
    DocumentWindow& active = *activeDocument();
    files_.saveAs(active.document());
    active.refresh();
}

// Only what has changed is written: an untouched new document needs no name yet.
void VexaFrame::saveAllDocuments() {
    forEachDocument([this](DocumentWindow& window) {
        if (window.document().isModified()) files_.save(window.document());
        window.refresh();
    });
}

void VexaFrame::exit() {
    PostMessageA(window(), WM_CLOSE, 0, 0);
}

void VexaFrame::closeAllDocuments() {
    if (!mayCloseChildren()) return;
    std::vector<MDIchildCL*> all;
    for (const auto& child : children())
        all.push_back(child.get());
    closeChildren(all);
}

// ---- editing -----------------------------------------------------------------------------------------------------

template <class Operation>
void VexaFrame::operate(Operation operation) {
    DocumentWindow& active = *activeDocument();
    operation(active.view());
    active.refresh();
    SetFocus(active.window());
}

void VexaFrame::undo() {
    operate([](EditView& view) { view.undo(); });
}

void VexaFrame::redo() {
    operate([](EditView& view) { view.redo(); });
}

void VexaFrame::cut() {
    operate([](EditView& view) { view.cut(); });
}

void VexaFrame::copy() {
    operate([](EditView& view) { view.copy(); });
}

void VexaFrame::paste() {
    operate([](EditView& view) { view.paste(); });
}

template <CaseChange kChange>
void VexaFrame::changeCase() {
    operate([](EditView& view) { view.changeCase(kChange); });
}

void VexaFrame::clear() {
    operate([](EditView& view) { view.clear(); });
}

void VexaFrame::selectAll() {
    operate([](EditView& view) { view.selectAll(); });
}

void VexaFrame::toMatchingBracket() {
    operate([](EditView& view) { view.toMatchingBracket(); });
}

void VexaFrame::toWindowStart() {
    operate([](EditView& view) { view.toWindowStart(); });
}

void VexaFrame::toWindowEnd() {
    operate([](EditView& view) { view.toWindowEnd(); });
}

void VexaFrame::toDocumentStart() {
    operate([](EditView& view) { view.toDocumentStart(); });
}

void VexaFrame::toDocumentEnd() {
    operate([](EditView& view) { view.toDocumentEnd(); });
}

void VexaFrame::gotoLine() {
    const GotoLineModel model(application_.store);
    NumberDialog dialog(application_.store, IDD_GOTO_LINE, model.line, [this](const std::string& number) {
        operate([this, &number](EditView& view) {
            GotoLineModel answer(application_.store);
            answer.line = number;
            answer.go(view, application_.store);
        });
        return true;
    });
    dialog.runModal(window());
}

void VexaFrame::gotoBookmark() {
    const BookmarkModel model(application_.store);
    NumberDialog dialog(application_.store, IDD_JUMP_TO_BOOKMARK, model.number, [this](const std::string& number) {
        bool closes = false;
        notices_.clearStatus();
        operate([&](EditView& view) {
            BookmarkModel answer(application_.store);
            answer.number = number;
            closes = answer.jump(view, application_.store, notices_);
        });
        return closes;
    });
    dialog.runModal(window());
}

// ---- macro -------------------------------------------------------------------------------------------------------

// A play that is asked for while another goes on does nothing, and the keys go on waiting for the end of that one.
void VexaFrame::playMacro() {
    if (macro_.isPlaying()) return;
    macro_.Play();
    heldKeys_.giveBack(loop_);
}

void VexaFrame::repeatMacro() {
    std::optional<std::int32_t> count;
    NumberDialog dialog(application_.store, IDD_MACRO_REPEAT, repeat_.count, [&](const std::string& number) {
        repeat_.count = number;
        count = repeat_.accept(notices_);
        return count.has_value();
    });
    if (!dialog.runModal(window()) || !count || macro_.isPlaying()) return;
    macro_.PlayRepeated(*count);
    heldKeys_.giveBack(loop_);
}

bool VexaFrame::playKey(const KeyEvent& event) {
    DocumentWindow* active = activeDocument();
    if (useFrameKey(event, active != nullptr)) return true;
    if (active) active->view().key(event);
    return active != nullptr;
}

void VexaFrame::playMessage(const MacroMessage& message) {
    SendMessageA(reinterpret_cast<HWND>(message.window), message.message, message.first, message.second);
}

bool VexaFrame::playCommand(CommandId id) {
    return dispatcher_.Dispatch(id, CommandOrigin::Step);
}

void VexaFrame::updateDisplay() {
    DocumentWindow* active = activeDocument();
    if (!active) return;
    active->refresh();
    UpdateWindow(active->window());
}

// ---- help --------------------------------------------------------------------------------------------------------

void VexaFrame::helpOnHelp() {
    ShowHelp(window(), HELP_HELPONHELP);
}

void VexaFrame::helpIndex() {
    ShowHelp(window(), HELP_INDEX);
}

void VexaFrame::helpOnKeys() {
    ShowHelp(window(), HELP_CONTEXT, kHelpOnKeys);
}

// ---- the rest ----------------------------------------------------------------------------------------------------

void VexaFrame::changeOptions() {
    EditorOptionsDialog dialog(application_.store, application_.options);
    if (!dialog.runModal(window())) return;
    forEachDocument([](DocumentWindow& window) { window.refreshOptions(); });
}

void VexaFrame::changeFont() {
    const int dpi = DpiOf(window());
    LOGFONTA description = DescribeFont(application_.font, dpi);
    if (!AskFixedPitchFont(window(), description)) return;
    application_.font = DetailsOf(description, dpi);
    refreshFonts();
}

void VexaFrame::zoom(std::int32_t steps) {
    application_.font.zoom(steps);
    refreshFonts();
}

void VexaFrame::resetZoom() {
    application_.font.resetZoom();
    refreshFonts();
}

void VexaFrame::refreshFonts() {
    forEachDocument([](DocumentWindow& window) { window.refreshFont(); });
}

void VexaFrame::toggleToolBar() {
    bool& shown = application_.options.ToolBar;
    shown = !shown;
    toolBar_.show(shown);
    layOut();
}

void VexaFrame::toggleStatusBar() {
    bool& shown = application_.options.StatusBar;
    shown = !shown;
    statusBar_.show(shown);
    layOut();
}

void VexaFrame::showAbout() {
    const std::string text = FillText(TextId::AboutProgram, {kProgramCaption, VEXA_VERSION});
    ShowAboutBox(window(), text, FillText(TextId::AboutTitle, {kProgramCaption}), IDI_VEXA);
}

}  // namespace vexa

// The commands that the frame carries out.
#include "document/bookmark_model.h"
#include "document/goto_line_model.h"
#include "framework/dpi.h"
#include "framework/file_dialog.h"
#include "framework/font_dialog.h"
#include "framework/message_box.h"
#include "ui/dialog_controls.h"
#include "ui/editor_options_dialog.h"
#include "ui/file_selection.h"
#include "ui/for_each_document.h"
#include "ui/help.h"
#include "ui/number_dialog.h"
#include "ui/pane_font.h"
#include "ui/resource.h"
#include "ui/vexa_frame.h"

namespace vexa {

struct FrameCommands {
    struct Row {
        std::uint16_t id;
        void (VexaFrame::*run)();
    };
    static constexpr Row kRows[] = {
        {200, &VexaFrame::newDocument},
        {201, &VexaFrame::openDocuments},
        {202, &VexaFrame::closeDocument},
        {203, &VexaFrame::saveDocument},
        {204, &VexaFrame::saveDocumentAs},
        {205, &VexaFrame::saveAllDocuments},
        {206, &VexaFrame::setUpPrinting},
        {207, &VexaFrame::printDocument},
        {208, &VexaFrame::exit},
        {300, &VexaFrame::undo},
        {301, &VexaFrame::redo},
        {302, &VexaFrame::cut},
        {303, &VexaFrame::copy},
        {304, &VexaFrame::paste},
        {305, &VexaFrame::clear},
        {401, &VexaFrame::changeColours},
        {403, &VexaFrame::changeFont},
        {405, &VexaFrame::changeElectric},
        {406, &VexaFrame::changeExtensions},
        {800, &VexaFrame::changeCase<CaseChange::Toggle>},
        {801, &VexaFrame::changeCase<CaseChange::Lower>},
        {802, &VexaFrame::changeCase<CaseChange::Upper>},
        {803, &VexaFrame::openInclude},
        {312, &VexaFrame::selectAll},
        {605, &VexaFrame::closeAllDocuments},
        {606, &VexaFrame::activateNext},
        {607, &VexaFrame::activatePrevious},
        {309, &VexaFrame::gotoLine},
        {311, &VexaFrame::gotoBookmark},
        {404, &VexaFrame::changeOptions},
        {425, &VexaFrame::playMacro},
        {427, &VexaFrame::repeatMacro},
        {426, &VexaFrame::recordMacro},
        {700, &VexaFrame::helpOnHelp},
        {701, &VexaFrame::helpIndex},
        {702, &VexaFrame::helpOnKeys},
        {900, &VexaFrame::toMatchingBracket},
        {707, &VexaFrame::showAbout},
        {901, &VexaFrame::toWindowStart},
        {306, &VexaFrame::find},
        {310, &VexaFrame::replace},
        {307, &VexaFrame::findNext},
        {308, &VexaFrame::findPrevious},
        {902, &VexaFrame::toWindowEnd},
        {903, &VexaFrame::toDocumentStart},
        {904, &VexaFrame::toDocumentEnd},
    };

    struct ArrangementRow {
        std::uint16_t id;
        Arrangement arrangement;
    };
    static constexpr ArrangementRow kArrangements[] = {
        {601, Arrangement::Cascade},          {602, Arrangement::Tile},  {603, Arrangement::TileVertically},
        {604, Arrangement::TileHorizontally}, {600, Arrangement::Icons},
    };
};

void VexaFrame::registerCommands() {
    for (const auto& row : FrameCommands::kRows) {
        dispatcher_.RegisterCommand(CommandId{row.id}, [this, run = row.run](CommandId) { (this->*run)(); });
    }
    for (const auto& row : FrameCommands::kArrangements) {
        dispatcher_.RegisterCommand(CommandId{row.id}, [this, how = row.arrangement](CommandId) { arrange(how); });
    }
    for (const CommandId id : {CommandId{210}, CommandId{211}}) {
        dispatcher_.RegisterCommand(id, [this](CommandId chosen) { openRecentFile(chosen); });
    }
    dispatcher_.RegisterToggle(
        CommandId{450}, [this](CommandId) { toggleToolBar(); }, [this] { return application_.options.ToolBar; });
    dispatcher_.RegisterToggle(
        CommandId{451}, [this](CommandId) { toggleStatusBar(); }, [this] { return application_.options.StatusBar; });
}

// ---- files -------------------------------------------------------------------------------------------------------

void VexaFrame::openDocuments() {
    FileDialogRequest request;
    request.owner = window();
    request.title = "Open";
    for (const FileKind& kind : OfferedFileKinds(application_.options))
        request.filters.push_back({kind.label, kind.patterns});
    request.explorerStyle = application_.options.UseExplorer;
    const std::optional<std::string> answer = AskOpenFiles(request);
    if (!answer) return;
    for (const std::string& path : SplitSelection(*answer))
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
    closeChildren();
}

// ---- editing -----------------------------------------------------------------------------------------------------

template <class Operation>
void VexaFrame::operate(Operation operation) {
    DocumentWindow& active = *activeDocument();
    notices_.clearStatus();
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

void VexaFrame::repeatMacro() {
    std::optional<std::int32_t> count;
    NumberDialog dialog(application_.store, IDD_MACRO_REPEAT, repeat_.count, [&](const std::string& number) {
        repeat_.count = number;
        count = repeat_.accept(notices_);
        return count.has_value();
    });
    if (dialog.runModal(window()) && count) macro_.PlayRepeated(*count);
}

void VexaFrame::playKey(const KeyEvent& event) {
    DocumentWindow* active = activeDocument();
    if (!useFrameKey(event, active != nullptr) && active) active->view().key(event);
}

void VexaFrame::playMessage(const MacroMessage& message) {
    SendMessageA(reinterpret_cast<HWND>(message.window), message.message, message.first, message.second);
}

void VexaFrame::playCommand(CommandId id) {
    dispatcher_.Dispatch(id);
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
    const std::string text = std::string(kProgramCaption) + "\nVersion " VEXA_VERSION
                                                            "\n\nA programmer's editor for "
                                                            "Windows.\n\nCopyright \xA9 Vexa contributors";
    ShowAboutBox(window(), text, "About " + std::string(kProgramCaption), IDI_VEXA);
}

}  // namespace vexa

#include "ui/frame/vexa_frame.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "base/platform.h"
#include "base/strings.h"
#include "document/text/file_identity.h"
#include "framework/file_dialog.h"
#include "framework/message_box.h"
#include "framework/title_bar.h"
#include "ui/dialogs/file_selection.h"
#include "ui/frame/for_each_document.h"
#include "ui/frame/menu_rows.h"
#include "ui/frame/status_panes.h"
#include "ui/frame/tool_buttons.h"
#include "ui/resources/resource.h"

namespace vexa {
namespace {

constexpr WindowClass kFrameClass{.name = kFrameClassName, .background = COLOR_APPWORKSPACE, .icon = IDI_VEXA};
constexpr UINT_PTR kBackupTimer = 1;
constexpr UINT_PTR kSettingsTimer = 2;
constexpr UINT kBackupCheckInterval = 10'000;  // milliseconds

}  // namespace

VexaFrame::VexaFrame(Application& application)
    : application_(application),
      loop_(*this),
      toolBar_(ToolButtons(), ToolPictureStrips(), &ToolTipOf),
      statusBar_(WidestPaneTexts()),
      notices_(*this, statusBar_, loop_),
      files_(notices_, *this, application.profiles),
      opening_(*this, application.options, notices_),
      outside_(opening_, *this, notices_),
      dispatcher_(notices_, [this](CommandNeed need) { return isMet(need); }),
      macro_(*this, notices_),
      search_(application.searchOptions, notices_, watch_),
      backup_(*this, application.options, application.directories.GetDirectory(kBackupDirectory), notices_,
              &platform::CurrentSeconds),
      startupFiles_(application.store),
      fileOpenMessage_(platform::RegisterBroadcast(kFileOpenMessage)) {
    registerCommands();
    search_.setFailureListener([this](bool isUserStop) { macro_.searchFailed(isUserStop); });
    dispatcher_.setRecorder([this](CommandId id, CommandOrigin origin) { macro_.recordCommand(id, origin); });
}

bool VexaFrame::open(int showCommand) {
    const std::string title(kProgramCaption);
    if (!create(kFrameClass, {.title = title.c_str(), .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN})) return false;
    DragAcceptFiles(window(), TRUE);
    ddeServer_ = std::make_unique<DdeServer>("Vexa Editor", "system",
                                             [this](const std::string& text) { return outside_.executeDde(text); });
    restorePlacement(showCommand);
    UpdateWindow(window());
    SetTimer(window(), kBackupTimer, kBackupCheckInterval, nullptr);
    return true;
}

void VexaFrame::openFirstFiles(std::span<const FileAtLine> files, bool isBareStart) {
    recentFiles_.LoadRecentFiles(application_.store, application_.options.RestoreFiles);
    showRecentFiles();
    startupFiles_.RestoreStartupFiles(application_.options.RestoreFiles,
                                      [this](const std::string& path, std::int32_t line) { restoreFile(path, line); });
    const DrawingPause pause = pauseFor(files.size());
    opening_.OpenCommandLineFiles(files);
    if (children().empty() && isBareStart) newDocument();
}

bool VexaFrame::onCreate() {
    const MenuBarRows rows = MainMenuRows();
    MenuHandle bar = MakeMenuBar(rows.menus);
    fileMenu_ = GetSubMenu(bar.get(), 0);
    const HMENU windowMenu = GetSubMenu(bar.get(), static_cast<int>(rows.windowMenu));
    setMenu(std::move(bar));
    application_.clipboard.setOwner(window());
    SetDarkTitleBar(window(), application_.display.isDark());
    setAccelerators(MakeAccelerators(AcceleratorKeys()));
    if (!toolBar_.open(window()) || !statusBar_.open(window()) || !openClient(windowMenu)) return false;
    toolBar_.show(application_.options.ToolBar);
    statusBar_.show(application_.options.StatusBar);
    statusBar_.setPaneAction(kPositionPane, [this] { runCommand(static_cast<WORD>(CommandId::GotoLine), false); });
    statusBar_.setPaneAction(kModePane, [this] { switchOption(&EditorOptions::InsertMode); });
    statusBar_.setPaneAction(kLineEndsPane, [this] { switchOption(&EditorOptions::FileWrite); });
    return true;
}

// A program may tell of thousands of changes in a row; they are taken in when the system has nothing else to tell.
void VexaFrame::onSettingChange() {
    constexpr UINT kSettlingTime = 50;  // milliseconds
    SetTimer(window(), kSettingsTimer, kSettlingTime, nullptr);
}

void VexaFrame::takeSystemSettings() {
    if (!statusBar_.window()) return;
    statusBar_.refreshFont();
    toolBar_.refreshPictures();
    layOut();
    application_.display.refresh();
    refreshColours();
}

bool VexaFrame::onTimer(UINT_PTR timer) {
    if (timer == kSettingsTimer) {
        KillTimer(window(), kSettingsTimer);
        takeSystemSettings();
    } else {
        backup_.CheckBackups();
    }
    return true;
}

void VexaFrame::onFailed() {
    if (DocumentWindow* active = activeDocument()) active->recover();
}

void VexaFrame::refreshColours() {
    SetDarkTitleBar(window(), application_.display.isDark());
    forEachDocument([](DocumentWindow& window) { window.refreshColours(); });
}

// Finds out about comments that span lines before these are shown.
bool VexaFrame::workWhileIdle() {
    constexpr std::int32_t kLinesAtOnce = 2000;
    bool hasMore = false;
    forEachDocument([&](DocumentWindow& window) { hasMore |= window.document().lookAheadForComments(kLinesAtOnce); });
    return hasMore;
}

bool VexaFrame::onDpiChanged(const RECT& suggested) {
    takeSystemSettings();
    refreshFonts();
    return MDIframeCL::onDpiChanged(suggested);
}

bool VexaFrame::onSetCursor(UINT hitTest) {
    const bool isBusy = notices_.isBusy() && hitTest == HTCLIENT;
    if (isBusy) SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    return isBusy;
}

void VexaFrame::layOut() {
    RECT room = clientArea();
    if (application_.options.ToolBar) {
        const LONG bottom = std::min<LONG>(toolBar_.height(), room.bottom);
        toolBar_.place({0, 0, room.right, bottom});
        room.top = bottom;
    }
    if (application_.options.StatusBar) {
        const LONG top = std::max<LONG>(room.bottom - statusBar_.height(), room.top);
        statusBar_.place({0, top, room.right, room.bottom});
        room.bottom = top;
    }
    placeClient(room);
}

// ---- commands and status -----------------------------------------------------------------------------------------

bool VexaFrame::isMet(CommandNeed need) const {
    return need == CommandNeed::Window ? !children().empty() : activeDocument() != nullptr;
}

std::optional<ItemState> VexaFrame::itemState(WORD id) const {
    if (!FindCommand(CommandId{id})) return std::nullopt;
    return ItemState{dispatcher_.CanRun(CommandId{id}), dispatcher_.IsChecked(CommandId{id})};
}

void VexaFrame::showItemHelp(std::optional<WORD> id) {
    if (id) {
        notices_.showHelp(StatusTextOf(CommandId{*id}));
    } else {
        notices_.endHelp();
    }
}

// The notice of the command before goes first: what the dispatcher says of this one is to be read.
void VexaFrame::runCommand(WORD id, bool fromKey) {
    notices_.clearStatus();
    dispatcher_.Dispatch(CommandId{id}, fromKey ? CommandOrigin::Key : CommandOrigin::Menu);
    refreshToolBar();
    ShowRecordingPane(statusBar_, macro_.isRecording());
}

void VexaFrame::refreshToolBar() {
    toolBar_.refreshButtons([this](WORD id) { return *itemState(id); });
}

// What the mouse does here no macro holds.
void VexaFrame::switchOption(bool EditorOptions::*option) {
    DocumentWindow* active = activeDocument();
    if (!active) return;
    notices_.clearStatus();
    macro_.refuseStep();
    application_.options.*option = !(application_.options.*option);
    active->refresh();
}

void VexaFrame::documentChanged(const DocumentWindow& window) {
    ShowDocumentPanes(statusBar_, &window);
}

void VexaFrame::childrenChanged() {
    if (!statusBar_.window()) return;
    refreshToolBar();
    ShowDocumentPanes(statusBar_, activeDocument());
}

void VexaFrame::showContextMenu(POINT screenPlace) {
    const MenuHandle menu = MakePopupMenu(ContextMenuItems());
    TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON, screenPlace.x, screenPlace.y, 0, window(), nullptr);
}

// ---- documents ---------------------------------------------------------------------------------------------------

DocumentWindow* VexaFrame::activeDocument() const {
    return dynamic_cast<DocumentWindow*>(activeChild());
}

ChildShow VexaFrame::showOfNewWindow() const {
    switch (application_.options.DisplayMode) {
        case kCreateTiled:
            return ChildShow::Tiled;
        case kCreateMinimized:
            return ChildShow::Minimised;
        case kCreateMaximized:
            return ChildShow::Maximised;
        default:
            return ChildShow::Normal;
    }
}

bool VexaFrame::activateShowing(const std::string& path, LineIndex line) {
    const FileIdentity file(path);
    for (const auto& child : children()) {
        auto* shown = dynamic_cast<DocumentWindow*>(child.get());
        if (!shown || !file.isFileOf(shown->document())) continue;
        activate(*shown);
        shown->view().goTo(line, CharColumn(0));
        shown->refresh();
        return true;
    }
    return false;
}

bool VexaFrame::openWindow(const std::optional<std::string>& path, LineIndex line) {
    DocumentHost& host = *this;
    auto made = std::make_unique<DocumentWindow>(*this, host, application_, notices_);
    if (!files_.open(made->document(), path)) return false;
    DocumentWindow& shown = *made;
    const std::string caption = shown.caption();
    if (!adopt(std::move(made), kDocumentWindowClass, caption, showOfNewWindow())) return false;
    if (path) shown.view().goTo(line, CharColumn(0));
    shown.refresh();
    refreshToolBar();
    // The text before the frame around it, which the system else draws first.
    RedrawWindow(shown.window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return true;
}

// The dialog that waits for an answer has the keyboard; the frame behind it could do nothing with a key.
void VexaFrame::bringToFront() {
    SetForegroundWindow(GetLastActivePopup(window()));
}

void VexaFrame::restoreIfMinimised() {
    if (IsIconic(window())) ShowWindow(window(), SW_RESTORE);
}

bool VexaFrame::mayCloseDocument(DocumentWindow& window) {
    if (window.document().isModified()) activate(window);
    return files_.queryClose(window.document());
}

std::optional<std::string> VexaFrame::askSaveName(const TextDocument& document) {
    FileDialogRequest request;
    request.owner = window();
    request.title = LoadText(TextId::SaveAsTitle).data();
    for (const FileKind& kind : OfferedFileKinds(application_.options))
        request.filters.push_back({kind.label, kind.patterns});
    request.fileName = document.fullPath();
    request.explorerStyle = application_.options.UseExplorer;
    return AskSaveFile(request);
}

void VexaFrame::nameChanged(const TextDocument& document) {
    forEachDocument([&document](DocumentWindow& window) {
        if (&window.document() == &document) window.refreshName();
    });
}

}  // namespace vexa

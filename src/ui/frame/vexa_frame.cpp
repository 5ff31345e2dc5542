#include "ui/frame/vexa_frame.h"

#include <windows.h>

#include "base/platform.h"
#include "framework/title_bar.h"
#include "ui/frame/status_panes.h"
#include "ui/help/help.h"
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
      bars_(*this, application.options, [this] { layOut(); }),
      notices_(*this, bars_.statusBar(), loop_),
      documents_(*this, *this, application, notices_),
      commands_(documents_, application, notices_, loop_),
      session_(documents_, application, notices_),
      outside_(documents_, notices_),
      backup_(documents_, application.options, application.directories.GetDirectory(kBackupDirectory), notices_,
              &platform::CurrentSeconds),
      unsaved_(documents_, commands_.external(), application, notices_) {
    bars_.registerCommands(commands_.dispatcher());
    session_.registerCommands(commands_.dispatcher());
}

// ---- the window --------------------------------------------------------------------------------------------------

bool VexaFrame::open(int showCommand) {
    const char* const title = LoadText(TextId::ProgramCaption).data();
    if (!create(kFrameClass, {.title = title, .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN})) return false;
    outside_.start();
    session_.restorePlacement(showCommand);
    UpdateWindow(window());
    SetTimer(window(), kBackupTimer, kBackupCheckInterval, nullptr);
    unsaved_.start();
    return true;
}

void VexaFrame::openFirstFiles(std::span<const FileAtLine> files, bool isBareStart) {
    unsaved_.offerRecovery();
    session_.openFirstFiles(files);
    if (children().empty() && isBareStart) documents_.opening().OpenFileAtLine(std::nullopt, 0);
}

bool VexaFrame::onCreate() {
    const MenuBarRows rows = MainMenuRows();
    MenuHandle bar = MakeMenuBar(rows.menus);
    session_.setFileMenu(GetSubMenu(bar.get(), 0));
    const HMENU windowMenu = GetSubMenu(bar.get(), static_cast<int>(rows.windowMenu));
    setMenu(std::move(bar));
    commands_.external().showTools();
    application_.clipboard.setOwner(window());
    SetDarkTitleBar(window(), application_.display.isDark());
    setAccelerators(MakeAccelerators(AcceleratorKeys()));
    if (!bars_.open(window()) || !openClient(windowMenu)) return false;
    StatusBarCL& panes = bars_.statusBar();
    panes.setPaneAction(kPositionPane, [this] { runCommand(static_cast<WORD>(CommandId::GotoLine), false); });
    panes.setPaneAction(kModePane, [this] { usePane(SwitchInsertMode); });
    panes.setPaneAction(kLineEndsPane, [this] { usePane(SwitchLineEnds); });
    return true;
}

void VexaFrame::onDestroy() {
    outside_.stop();
    session_.save();
    CloseHelp(window());
    MDIframeCL::onDestroy();
}

// Whoever is closing the windows has asked all questions, and an exit has the session in hand.
bool VexaFrame::onQueryEndSession(bool& agreed) {
    if (isClosingChildren()) return true;
    session_.prepareEnd();
    unsaved_.keepAll();  // the system does not wait for the user's answers for ever
    agreed = takesCommands() && mayCloseChildren();
    if (!agreed) session_.takeBackEnd();
    return true;
}

// Nothing that is not saved by now can be; the next start offers it.
void VexaFrame::onEndSession(bool ends) {
    if (ends) unsaved_.keepAll();
    if (ends || !isClosingChildren()) session_.end(ends);
}

// ---- the system --------------------------------------------------------------------------------------------------

// A program may tell of thousands of changes in a row; they are taken in when the system has nothing else to tell.
void VexaFrame::onSettingChange() {
    constexpr UINT kSettlingTime = 50;  // milliseconds
    SetTimer(window(), kSettingsTimer, kSettlingTime, nullptr);
}

void VexaFrame::takeSystemSettings() {
    if (!bars_.isOpen()) return;
    bars_.takeSystemSettings();
    layOut();
    application_.display.refresh();
    documents_.refreshColours();
}

bool VexaFrame::onTimer(UINT_PTR timer) {
    if (timer == kSettingsTimer) {
        KillTimer(window(), kSettingsTimer);
        takeSystemSettings();
    } else if (!unsaved_.useTimer(timer) && !commands_.useTimer(timer)) {
        backup_.CheckBackups();
    }
    return true;
}

bool VexaFrame::onDpiChanged(const RECT& suggested) {
    takeSystemSettings();
    documents_.refreshFonts();
    return MDIframeCL::onDpiChanged(suggested);
}

bool VexaFrame::onSetCursor(UINT hitTest) {
    const bool isBusy = notices_.isBusy() && hitTest == HTCLIENT;
    if (isBusy) SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    return isBusy;
}

bool VexaFrame::onSize(UINT kind) {
    session_.placement().noteSize(kind);
    return MDIframeCL::onSize(kind);
}

void VexaFrame::onFailed() {
    if (DocumentWindow* active = documents_.active()) active->recover();
}

bool VexaFrame::onDropFiles(const std::vector<std::string>& names) {
    outside_.drop(names);
    return true;
}

// Finds out about comments that span lines before these are shown.
bool VexaFrame::workWhileIdle() {
    constexpr std::int32_t kLinesAtOnce = 2000;
    bool hasMore = false;
    documents_.each([&](DocumentWindow& window) {
        hasMore |= window.document().lookAheadForComments(kLinesAtOnce);
        if (window.document().takeGuessedComments()) window.refresh();
    });
    hasMore |= commands_.fileSearch().work();
    bars_.refreshTabs();
    return unsaved_.work() || hasMore;
}

// ---- commands and status -----------------------------------------------------------------------------------------

// The frame looks at its keys before the system does, which would go to the next window with Ctrl+F6. A dialog that
// waits for an answer has the keys.
bool VexaFrame::translate(MSG& message) {
    if (!takesCommands() || IsInHelpViewer(message.hwnd)) return false;  // others have the keys
    return commands_.useKey(message) || bars_.useMessage(message) || MDIframeCL::translate(message);
}

std::optional<ItemState> VexaFrame::itemState(WORD id) const {
    if (!FindCommand(CommandId{id})) return std::nullopt;
    const CommandDispatcher& dispatcher = commands_.dispatcher();
    return ItemState{dispatcher.CanRun(CommandId{id}), dispatcher.IsChecked(CommandId{id})};
}

void VexaFrame::showItemHelp(std::optional<WORD> id) {
    if (id) {
        notices_.showHelp(StatusTextOf(CommandId{*id}));
    } else {
        notices_.endHelp();
    }
}

// The topics of the commands have the commands' numbers.
void VexaFrame::explainItem(WORD id) {
    ShowHelp(window(), HELP_CONTEXT, id);
}

// The notice of the command before goes first: what the dispatcher says of this one is to be read.
void VexaFrame::runCommand(WORD id, bool fromKey) {
    notices_.clearStatus();
    commands_.dispatcher().Dispatch(CommandId{id}, fromKey ? CommandOrigin::Key : CommandOrigin::Menu);
    bars_.refreshButtons(commands_.dispatcher());
    bars_.showRecording(commands_.macro().isRecording());
}

// What the mouse does here no macro holds.
void VexaFrame::usePane(PaneUse* use) {
    DocumentWindow* active = documents_.active();
    if (!active) return;
    notices_.clearStatus();
    commands_.macro().refuseStep();
    use(*active, application_.options);
    active->refresh();
}

void VexaFrame::childrenChanged() {
    if (!bars_.isOpen()) return;
    bars_.refreshButtons(commands_.dispatcher());
    bars_.showDocument(documents_.active());
}

// The tabs are drawn anew here because no work is done while a box waits for its answer.
void VexaFrame::questionFollows(DocumentWindow& window) {
    activate(window);
    bars_.refreshTabs();
}

void VexaFrame::documentCloses(const DocumentWindow& window) {
    commands_.external().documentCloses(window);
    session_.documentCloses(window.document());
    unsaved_.documentCloses(window);
    outside_.documentCloses(window.document());
}

bool VexaFrame::showTitleMenu(POINT screenPosition) {
    const bool isOfDocument = takesCommands() && documents_.active();
    if (isOfDocument) showMenu(TitleMenuItems(), screenPosition);
    return isOfDocument;
}

void VexaFrame::showMenu(const std::vector<MenuItem>& items, POINT screenPosition) {
    const MenuHandle menu = MakePopupMenu(items);
    TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON, screenPosition.x, screenPosition.y, 0, window(), nullptr);
}

}  // namespace vexa

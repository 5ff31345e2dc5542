// What the frame brings over from one session to the next, and what comes to it from outside.
#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "base/directories.h"
#include "base/platform.h"
#include "base/strings.h"
#include "shell/closing_order.h"
#include "ui/frame/for_each_document.h"
#include "ui/frame/vexa_frame.h"

namespace vexa {
namespace {

constexpr UINT kOpenWaitingMessage = WM_APP + 1;  // posted by the frame to itself
constexpr WORD kRecentFilesSeparator = 100;

ScreenRect ToScreenRect(const RECT& area) {
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

BOOL CALLBACK AddWorkArea(HMONITOR monitor, HDC, RECT*, LPARAM areas) {
    MONITORINFO details{};
    details.cbSize = sizeof(details);
    if (GetMonitorInfoA(monitor, &details)) {
        reinterpret_cast<std::vector<ScreenRect>*>(areas)->push_back(ToScreenRect(details.rcWork));
    }
    return TRUE;
}

std::vector<ScreenRect> WorkAreas() {
    std::vector<ScreenRect> areas;
    EnumDisplayMonitors(nullptr, nullptr, &AddWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

ScreenRect PlaceOnScreen(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return ToScreenRect(place);
}

// The ways in which a program can be started, as the frame's states.
FrameState StateOf(int showCommand) {
    if (showCommand == SW_SHOWMAXIMIZED) return FrameState::Maximised;
    const bool isMinimised =
        showCommand == SW_SHOWMINIMIZED || showCommand == SW_MINIMIZE || showCommand == SW_SHOWMINNOACTIVE;
    return isMinimised ? FrameState::Minimised : FrameState::Normal;
}

}  // namespace

// ---- placement ---------------------------------------------------------------------------------------------------

// A maximised or minimised frame keeps the rectangle for when it is restored.
void VexaFrame::restorePlacement(int showCommand) {
    placement_ = LoadFramePlacement(application_.store, application_.options.RestoreSize, StateOf(showCommand),
                                    PlaceOnScreen(window()));
    const auto areas = WorkAreas();
    placement_.normal = KeptOnScreen(placement_.normal, areas);
    const ScreenRect& place = placement_.normal;
    MoveWindow(window(), place.x, place.y, place.width, place.height, FALSE);
    isOpened_ = true;
    ShowWindow(window(), static_cast<int>(placement_.state));
}

bool VexaFrame::onSize(UINT kind) {
    static constexpr FrameState kStates[] = {FrameState::Normal, FrameState::Minimised, FrameState::Maximised};
    if (isOpened_ && kind <= SIZE_MAXIMIZED) placement_.noteSize(kStates[kind], PlaceOnScreen(window()));
    return MDIframeCL::onSize(kind);
}

void VexaFrame::onMove() {
    if (isOpened_ && !IsIconic(window()) && !IsZoomed(window())) placement_.noteMove(PlaceOnScreen(window()));
}

// ---- files of the session ----------------------------------------------------------------------------------------

void VexaFrame::documentCloses(const DocumentWindow& window) {
    const TextDocument& document = window.document();
    if (!document.isNamed()) return;
    if (isClosing_) {
        startupFiles_.RecordStartupFile(document.fullPath(), document.currentLine().value + 1);
    } else {
        recentFiles_.RecordRecentFile(document.fullPath());
        showRecentFiles();
    }
}

void VexaFrame::showRecentFiles() {
    std::vector<MenuItem> items;
    for (const RecentFileRow& row : recentFiles_.menuRows())
        items.push_back({static_cast<WORD>(row.id), row.text});
    const auto number = [](CommandId id) { return static_cast<WORD>(id); };
    ReplaceItemsBefore(fileMenu_, number(CommandId::Exit),
                       {number(CommandId::FirstRecentFile), number(CommandId::SecondRecentFile)}, items,
                       kRecentFilesSeparator);
    DrawMenuBar(window());
}

// A new document under the name of a file that has gone since is nothing that the user asked for.
void VexaFrame::restoreFile(const std::string& path, std::int32_t line) {
    if (platform::PathExists(path)) {
        opening_.OpenFileAtLine(path, line);
    } else {
        const std::string name = path.substr(DirectoryOf(path).size());
        notices_.box(FillText(TextId::CannotOpenFile, {name}), kErrorCaption, BoxButtons::Ok);
    }
}

std::vector<MDIchildCL*> VexaFrame::sessionOrder() const {
    std::vector<MDIchildCL*> documents = childrenByUse();
    const auto isUnnamed = [](const MDIchildCL* child) {
        const auto* shown = dynamic_cast<const DocumentWindow*>(child);
        return !shown || !shown->document().isNamed();
    };
    const auto named = std::ranges::stable_partition(documents, isUnnamed);
    std::vector<MDIchildCL*> order(documents.begin(), named.begin());
    for (const std::size_t rank : ClosingOrder(named.size()))
        order.push_back(named[rank]);
    return order;
}

// All questions come before the first window closes: whoever cancels has lost nothing.
bool VexaFrame::mayClose() {
    if (!mayCloseChildren()) return false;
    isClosing_ = true;
    closeChildren(sessionOrder());
    isClosing_ = children().empty();
    return isClosing_;
}

void VexaFrame::saveSession() {
    SaveFramePlacement(application_.store, placement_);
    recentFiles_.SaveRecentFiles(application_.store);
    application_.options.Save(application_.store);
    application_.searchOptions.Save(application_.store);
    application_.coloursInEffect.save(application_.store);
    application_.font.Save(application_.store);
    application_.printOptions.Save(application_.store);
}

void VexaFrame::onDestroy() {
    DragAcceptFiles(window(), FALSE);
    saveSession();
    ddeServer_.reset();
    MDIframeCL::onDestroy();
}

// Windows may end the process at any time after it has asked, so the session is noted before the user is. Nothing is
// closed: another program may still refuse the end.
bool VexaFrame::onQueryEndSession(bool& agreed) {
    recordSession();
    agreed = takesCommands() && mayCloseChildren();
    if (!agreed) startupFiles_.takeBack();
    return true;
}

void VexaFrame::recordSession() {
    startupFiles_.keep();
    isClosing_ = true;
    for (const MDIchildCL* child : sessionOrder()) {
        if (const auto* shown = dynamic_cast<const DocumentWindow*>(child)) documentCloses(*shown);
    }
    isClosing_ = false;
    saveSession();
}

void VexaFrame::onEndSession(bool ends) {
    if (ends) {
        saveSession();
    } else {
        startupFiles_.takeBack();
    }
}

// ---- from outside ------------------------------------------------------------------------------------------------

bool VexaFrame::onDropFiles(const std::vector<std::string>& names) {
    if (isFree()) {
        const DrawingPause pause = pauseFor(names.size());
        opening_.OpenDroppedFiles(names);
    } else {
        for (const std::string& name : names)
            outside_.add({name, 0});
    }
    return true;
}

bool VexaFrame::onOther(Message& message) {
    if (message.number == kOpenWaitingMessage) {
        outside_.openWaiting();
    } else if (message.number == fileOpenMessage_ && fileOpenMessage_ != 0) {
        outside_.receiveHandOff(static_cast<std::uint32_t>(GetMessageTime()));
    } else {
        return false;
    }
    return true;
}

void VexaFrame::openWaitingSoon() {
    PostMessageA(window(), kOpenWaitingMessage, 0, 0);
}

std::vector<TextDocument*> VexaFrame::openDocuments() const {
    std::vector<TextDocument*> documents;
    forEachDocument([&documents](DocumentWindow& window) { documents.push_back(&window.document()); });
    return documents;
}

}  // namespace vexa

#include "ui/frame/frame_bars.h"

#include <algorithm>

#include "ui/frame/status_panes.h"
#include "ui/frame/tool_buttons.h"

namespace vexa {

FrameBars::FrameBars(MDIframeCL& frame, EditorOptions& options, Callback<void()> layOut)
    : options_(options),
      layOut_(layOut),
      toolBar_(ToolButtons(), ToolPictureStrips(), &ToolTipOf),
      tabs_(frame),
      statusBar_(WidestPaneTexts()) {}

void FrameBars::registerCommands(CommandDispatcher& dispatcher) {
    dispatcher.RegisterToggle(
        CommandId::ToggleToolBar, [this](CommandId) { toggleToolBar(); }, [this] { return options_.ToolBar; });
    dispatcher.RegisterToggle(
        CommandId::ToggleStatusBar, [this](CommandId) { toggleStatusBar(); }, [this] { return options_.StatusBar; });
    dispatcher.RegisterToggle(
        CommandId::ToggleTabs, [this](CommandId) { toggleTabs(); }, [this] { return options_.DocumentTabs; });
}

bool FrameBars::open(HWND frame) {
    if (!toolBar_.open(frame) || !statusBar_.open(frame) || !tabs_.open(frame)) return false;
    toolBar_.show(options_.ToolBar);
    statusBar_.show(options_.StatusBar);
    tabs_.show(options_.DocumentTabs);
    return true;
}

void FrameBars::toggleToolBar() {
    options_.ToolBar = !options_.ToolBar;
    toolBar_.show(options_.ToolBar);
    layOut_();
}

void FrameBars::toggleStatusBar() {
    options_.StatusBar = !options_.StatusBar;
    statusBar_.show(options_.StatusBar);
    layOut_();
}

void FrameBars::toggleTabs() {
    options_.DocumentTabs = !options_.DocumentTabs;
    refreshTabs();
    tabs_.show(options_.DocumentTabs);
    layOut_();
}

void FrameBars::refreshTabs() {
    if (options_.DocumentTabs) tabs_.refresh();
}

RECT FrameBars::place(RECT room) {
    if (options_.ToolBar) {
        const LONG bottom = std::min<LONG>(toolBar_.height(), room.bottom);
        toolBar_.place({0, 0, room.right, bottom});
        room.top = bottom;
    }
    if (options_.StatusBar) {
        const LONG top = std::max<LONG>(room.bottom - statusBar_.height(), room.top);
        statusBar_.place({0, top, room.right, room.bottom});
        room.bottom = top;
    }
    if (options_.DocumentTabs) {
        const LONG bottom = std::min<LONG>(room.top + tabs_.height(), room.bottom);
        tabs_.place({0, room.top, room.right, bottom});
        room.top = bottom;
    }
    return room;
}

void FrameBars::takeSystemSettings() {
    statusBar_.refreshFont();
    toolBar_.refreshPictures();
    tabs_.refreshFont();
}

void FrameBars::refreshButtons(const CommandDispatcher& dispatcher) {
    toolBar_.refreshButtons([&dispatcher](WORD id) {
        return ItemState{dispatcher.CanRun(CommandId{id}), dispatcher.IsChecked(CommandId{id})};
    });
}

void FrameBars::showDocument(const DocumentWindow* window) {
    ShowDocumentPanes(statusBar_, window);
}

void FrameBars::showRecording(bool isRecording) {
    ShowRecordingPane(statusBar_, isRecording);
}

}  // namespace vexa

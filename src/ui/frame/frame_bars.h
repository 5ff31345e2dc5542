// The tool bar, the tabs and the status bar of the frame: where they lie, what they show, and the commands that hide
// them.
#pragma once

#include "base/callback.h"
#include "base/editor_options.h"
#include "framework/status_bar.h"
#include "framework/tool_bar.h"
#include "shell/command_dispatcher.h"
#include "ui/document/document_window.h"
#include "ui/frame/document_tabs.h"

namespace vexa {

class FrameBars {
  public:
    // Whoever lays the frame out hears when a bar has been shown or hidden.
    FrameBars(MDIframeCL& frame, EditorOptions& options, Callback<void()> layOut);

    void registerCommands(CommandDispatcher& dispatcher);
    // False when the system refuses to make a bar.
    bool open(HWND frame);
    bool isOpen() const { return statusBar_.window() != nullptr; }
    StatusBarCL& statusBar() { return statusBar_; }
    // Places the bars that are shown; the room between them that is left.
    RECT place(RECT room);
    // Takes over the fonts and the resolution in force.
    void takeSystemSettings();

    void refreshButtons(const CommandDispatcher& dispatcher);
    // None clears what is said of a document.
    void showDocument(const DocumentWindow* window);
    void showRecording(bool isRecording);
    // Shows the windows inside the frame as they are now, if there are tabs.
    void refreshTabs();
    // Takes a message from the queue that is for the tabs; false for any other.
    bool useMessage(const MSG& message) { return options_.DocumentTabs && tabs_.useMessage(message); }

  private:
    void toggleToolBar();
    void toggleStatusBar();
    void toggleTabs();

    EditorOptions& options_;
    Callback<void()> layOut_;
    ToolBarCL toolBar_;
    DocumentTabs tabs_;
    StatusBarCL statusBar_;
};

}  // namespace vexa

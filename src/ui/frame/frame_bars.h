// The tool bar and the status bar of the frame: where they lie, what they show, and the commands that hide them.
#pragma once

#include <functional>

#include "base/editor_options.h"
#include "framework/status_bar.h"
#include "framework/tool_bar.h"
#include "shell/command_dispatcher.h"
#include "ui/document/document_window.h"

namespace vexa {

class FrameBars {
  public:
    // Whoever lays the frame out hears when a bar has been shown or hidden.
    FrameBars(EditorOptions& options, std::function<void()> layOut);

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

  private:
    void toggleToolBar();
    void toggleStatusBar();

    EditorOptions& options_;
    std::function<void()> layOut_;
    ToolBarCL toolBar_;
    StatusBarCL statusBar_;
};

}  // namespace vexa

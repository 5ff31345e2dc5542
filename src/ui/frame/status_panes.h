// The panes of the status bar and what they say of the program and of the active document.
#pragma once

#include <string>
#include <vector>

#include "framework/status_bar.h"
#include "ui/document/document_window.h"

namespace vexa {

enum StatusPane : std::size_t {
    kMessagePane,
    kRecordingPane,
    kReadOnlyPane,
    kLineEndsPane,
    kModePane,
    kPositionPane,
};

// What the bar needs room for after the message.
std::vector<std::string> WidestPaneTexts();
// With no document the panes are empty.
void ShowDocumentPanes(StatusBarCL& bar, const DocumentWindow* window);
// What a click on a pane does to the active document or to the options.
using PaneUse = void(DocumentWindow& window, EditorOptions& options);
void SwitchInsertMode(DocumentWindow& window, EditorOptions& options);
// Ends that the document keeps are changed all at once; all others are as the option says.
void SwitchLineEnds(DocumentWindow& window, EditorOptions& options);
void ShowRecordingPane(StatusBarCL& bar, bool isRecording);

}  // namespace vexa

#include "ui/frame/status_panes.h"

namespace vexa {
namespace {

struct DocumentPane {
    StatusPane pane;
    const char* widest;
    std::string (*textOf)(const DocumentWindow& window);
};

// In the order of the panes.
constexpr DocumentPane kDocumentPanes[] = {
    {kReadOnlyPane, "Read only",
     [](const DocumentWindow& w) { return std::string(w.isReadOnly() ? "Read only" : ""); }},
    {kLineEndsPane, "CRLF",
     [](const DocumentWindow& w) { return std::string(w.document().options().FileWrite ? "LF" : "CRLF"); }},
    {kModePane, "OVR", [](const DocumentWindow& w) { return std::string(w.view().modeText()); }},
    {kPositionPane, " L:00000 C:000", [](const DocumentWindow& w) { return w.view().positionText(); }},
};
constexpr const char* kRecording = "REC";

}  // namespace

std::vector<std::string> WidestPaneTexts() {
    std::vector<std::string> texts = {kRecording};
    for (const DocumentPane& row : kDocumentPanes)
        texts.emplace_back(row.widest);
    return texts;
}

void ShowDocumentPanes(StatusBarCL& bar, const DocumentWindow* window) {
    for (const DocumentPane& row : kDocumentPanes)
        bar.setPane(row.pane, window ? row.textOf(*window) : std::string());
}

void ShowRecordingPane(StatusBarCL& bar, bool isRecording) {
    bar.setPane(kRecordingPane, isRecording ? kRecording : "", isRecording);
}

}  // namespace vexa

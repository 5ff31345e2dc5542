#include "ui/frame/status_panes.h"

#include "document/text/document_line_ends.h"

namespace vexa {
namespace {

std::string_view LineEndsOf(const TextDocument& document) {
    if (!document.rules().keepsLineEnds) return document.options().FileWrite ? "LF" : "CRLF";
    return document.lineEndStyle().isMixed ? "Mixed" : NameOf(document.lineEndStyle().common);
}

struct DocumentPane {
    StatusPane pane;
    const char* widest;
    std::string (*textOf)(const DocumentWindow& window);
};

// In the order of the panes.
constexpr DocumentPane kDocumentPanes[] = {
    {kReadOnlyPane, "Read only",
     [](const DocumentWindow& w) { return std::string(w.isReadOnly() ? "Read only" : ""); }},
    {kLineEndsPane, "Mixed", [](const DocumentWindow& w) { return std::string(LineEndsOf(w.document())); }},
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

void SwitchInsertMode(DocumentWindow& /*window*/, EditorOptions& options) {
    options.InsertMode = !options.InsertMode;
}

void SwitchLineEnds(DocumentWindow& window, EditorOptions& options) {
    const TextDocument& document = window.document();
    if (document.rules().keepsLineEnds) {
        window.view().editor().run<UnifyLineEnds>(OtherLineEnd(document.lineEndStyle()));
        window.view().finish();
    } else {
        options.FileWrite = !options.FileWrite;
    }
}

void ShowRecordingPane(StatusBarCL& bar, bool isRecording) {
    bar.setPane(kRecordingPane, isRecording ? kRecording : "", isRecording);
}

}  // namespace vexa

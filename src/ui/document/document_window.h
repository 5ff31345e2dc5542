// A window inside the frame that shows one document: its pane and the margin beside it.
#pragma once

#include <optional>
#include <string>

#include "document/view/edit_view.h"
#include "ui/document/application.h"
#include "ui/document/margin_window.h"
#include "ui/document/pane_window.h"
#include "ui/document/text_window.h"

namespace vexa {

class DocumentWindow;

// What a document's window asks of the frame.
class DocumentHost {
  public:
    virtual ~DocumentHost() = default;
    virtual void userActs() = 0;
    virtual void mousePressed() = 0;
    // The window has become the active one, or what it shows of itself in the frame may have changed.
    virtual void documentChanged(const DocumentWindow& window) = 0;
    virtual void keyUsed(const KeyEvent& event) = 0;
    virtual void zoom(std::int32_t steps) = 0;
    virtual bool mayCloseDocument(DocumentWindow& window) = 0;
    // A question about the window's document follows, which the user is to have before his eyes.
    virtual void questionFollows(DocumentWindow& window) = 0;
    // The window is going to be closed.
    virtual void documentCloses(const DocumentWindow& window) = 0;
    virtual void showContextMenu(POINT screenPosition) = 0;
};

extern const WindowClass kDocumentWindowClass;

class DocumentWindow : public TextWindow, private PaneHost, private MarginHost {
  public:
    DocumentWindow(MDIframeCL& frame, DocumentHost& host, Application& application, Notices& notices);

    DocumentWindow* asDocument() override { return this; }

    TextDocument& document() { return document_; }
    const TextDocument& document() const { return document_; }
    EditView& view() { return view_; }
    const EditView& view() const { return view_; }
    // Where columns of a line are on the screen, as far as they are in sight.
    RECT screenAreaOf(LineIndex line, DisplayColumn from, DisplayColumn to) const {
        return pane_.screenAreaOf(line, from, to);
    }
    // The document's name, marked while it has changes that are not saved, and the directory behind it: where there is
    // room for the beginning alone, as in tiled windows, that tells more.
    std::string caption() const;
    // Whether the file could not be saved, as it was when the window last became the active one.
    bool isReadOnly() const { return isReadOnly_; }
    // Shows what has been done to the view from outside.
    void refresh() { pane_.refresh(); }
    // A command has broken off: what it has done is a command of its own for undo, and is shown.
    void recover();
    // Takes over another name.
    void refreshName();
    void refreshFont() override;
    void refreshColours() override;
    // Takes over options that have been changed.
    void refreshOptions();

    bool mayClose() override { return host_.mayCloseDocument(*this); }
    void onClosing() override { host_.documentCloses(*this); }

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onFocusGained() override;
    bool onMdiActivate(bool active) override;

  private:
    void layOut();
    void lookAtFile();
    void userActs() override;
    void mousePressed() override { host_.mousePressed(); }
    void viewChanged() override;
    void commandFailed() override { recover(); }
    void keyUsed(const KeyEvent& event) override { host_.keyUsed(event); }
    void zoom(std::int32_t steps) override { host_.zoom(steps); }
    void showContextMenu(POINT screenPosition) override { host_.showContextMenu(screenPosition); }
    void marginPressed(POINT screenPosition, bool shift) override { pane_.startMarkingLines(screenPosition, shift); }
    void marginWheel(const WheelMessage& turn) override { pane_.onWheel(turn); }

    DocumentHost& host_;
    const EditorOptions& options_;
    TextDocument document_;
    EditView view_;
    PaneWindowCL pane_;
    MDImarginCL margin_;
    bool isReadOnly_ = false;
    LONG marginWidth_ = 0;  // in pixels, as it was last laid out
};

}  // namespace vexa

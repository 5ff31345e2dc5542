// A window inside the frame that shows one document: its pane and the margin beside it.
#pragma once

#include <optional>
#include <string>

#include "document/edit_view.h"
#include "framework/mdi_child.h"
#include "ui/application.h"
#include "ui/margin_window.h"
#include "ui/pane_window.h"

namespace vexa {

class DocumentWindow;

// What a document's window asks of the frame.
class DocumentHost {
  public:
    virtual ~DocumentHost() = default;
    virtual void userActs() = 0;
    // The window has become the active one, or what it shows of itself in the frame may have changed.
    virtual void documentChanged(const DocumentWindow& window) = 0;
    virtual void keyUsed(const KeyEvent& event) = 0;
    virtual bool mayCloseDocument(DocumentWindow& window) = 0;
    virtual void showContextMenu(POINT screenPlace) = 0;
};

extern const WindowClass kDocumentWindowClass;

class DocumentWindow : public MDIchildCL, private PaneHost {
  public:
    DocumentWindow(MDIframeCL& frame, DocumentHost& host, Application& application, Notices& notices);

    TextDocument& document() { return document_; }
    const TextDocument& document() const { return document_; }
    EditView& view() { return view_; }
    const EditView& view() const { return view_; }
    // The document's path, marked while it has changes that are not saved.
    std::string caption() const;
    // Shows what has been done to the view from outside.
    void refresh() { pane_.refresh(); }
    // Takes over the resolution of the monitor that the frame is on.
    void refreshFont();
    // Takes over options that have been changed.
    void refreshOptions();

    bool mayClose() override { return host_.mayCloseDocument(*this); }

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onFocusGained() override;
    bool onMdiActivate(bool active) override;

  private:
    void layOut();
    void userActs() override;
    void viewChanged() override;
    void keyUsed(const KeyEvent& event) override { host_.keyUsed(event); }
    void showContextMenu(POINT screenPlace) override { host_.showContextMenu(screenPlace); }

    DocumentHost& host_;
    const EditorOptions& options_;
    TextDocument document_;
    EditView view_;
    MDImarginCL margin_;
    PaneWindowCL pane_;
};

}  // namespace vexa

// The windows inside the frame as documents: which of them is the active one, doing something with each, making and
// closing them. Other windows inside the frame are passed over.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "framework/drawing_pause.h"
#include "framework/mdi_frame.h"
#include "shell/auto_backup.h"
#include "shell/file_commands.h"
#include "shell/file_opening.h"
#include "shell/outside_opens.h"
#include "ui/document/document_window.h"
#include "ui/frame/frame_notices.h"

namespace vexa {

// Posted to the frame: files that other programs handed over may now be opened.
inline constexpr UINT kOpenWaitingMessage = WM_APP + 1;

class OpenDocuments : public OutsideFrame, public BackupFrame, private FileQuestions {
  public:
    // The host hears from every window that is made here.
    OpenDocuments(MDIframeCL& frame, DocumentHost& host, Application& application, FrameNotices& notices)
        : frame_(frame),
          host_(host),
          application_(application),
          notices_(notices),
          files_(notices, *this, application.profiles),
          opening_(*this, application.options, notices) {}

    MDIframeCL& frame() const { return frame_; }
    FileCommands& files() { return files_; }
    FileOpening& opening() { return opening_; }

    // What a window inside the frame is to the editor, and the document's window if it is one; none for none.
    static TextWindow* WindowOf(MDIchildCL* child) { return static_cast<TextWindow*>(child); }
    static DocumentWindow* DocumentOf(MDIchildCL* child) { return child ? WindowOf(child)->asDocument() : nullptr; }

    // None when no window is open, or the active one shows no document.
    DocumentWindow* active() const { return DocumentOf(frame_.activeChild()); }
    // None when no window is open, or the active one shows no list.
    ListWindow* activeList() const {
        MDIchildCL* active = frame_.activeChild();
        return active ? WindowOf(active)->asList() : nullptr;
    }
    // More windows may be opened meanwhile.
    template <class Use>
    void each(Use use) const {
        for (std::size_t i = 0; i < frame_.children().size(); ++i) {
            if (DocumentWindow* window = DocumentOf(frame_.children()[i].get())) use(*window);
        }
    }
    // None when no window shows the document.
    DocumentWindow* windowOf(const TextDocument& document) const;
    // Lets an operation work on the edit view of the active document, if there is one, shows what it has done, and
    // gives the document the keyboard.
    template <class Operation>
    void operate(Operation operation) const {
        DocumentWindow* window = active();
        if (!window) return;
        operation(window->view());
        window->refresh();
        SetFocus(window->window());
    }
    // For opening that many files in a row.
    DrawingPause pauseFor(std::size_t files) const { return DrawingPause(files > 1 ? frame_.mdiClient() : nullptr); }

    // Take over what has been changed in the application's font, colours, options, or profiles.
    void refreshFonts();
    void refreshColours();
    void refreshOptions();
    void takeProfilesAnew();

    // Asks about changes that are not saved; false when the window must stay open.
    bool mayClose(DocumentWindow& window);
    // Closes all windows, unless the user keeps one of them open.
    void closeAll();
    // The same at the end of the program, in the order in which the session remembers them best. True when none is
    // left.
    bool closeForExit();
    // Whether the program is about to end, and its windows are closed for that.
    bool isClosing() const { return isClosing_; }
    std::vector<MDIchildCL*> inSessionOrder() const;

    bool activateShowing(const std::string& path, TextPosition position) override;
    bool openWindow(const std::optional<std::string>& path, TextPosition position) override;
    void bringToFront() override;
    void restoreIfMinimised() override;
    bool isFree() const override { return frame_.takesCommands() && !isClosing_; }
    void openWaitingSoon() override { PostMessageA(frame_.window(), kOpenWaitingMessage, 0, 0); }
    const TextDocument* documentOf(const std::string& path) const override;
    bool isBusy() const override { return notices_.isBusy(); }
    std::vector<TextDocument*> openDocuments() const override;

  private:
    ChildShow showOfNewWindow() const;
    DocumentWindow* windowOfFile(const std::string& path) const;
    std::optional<std::string> askSaveName(const TextDocument& document) override;
    void nameChanged(const TextDocument& document) override;

    MDIframeCL& frame_;
    DocumentHost& host_;
    Application& application_;
    FrameNotices& notices_;
    FileCommands files_;
    FileOpening opening_;
    bool isClosing_ = false;
};

}  // namespace vexa

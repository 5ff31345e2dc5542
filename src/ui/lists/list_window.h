// A window inside the frame that shows one list, such as what a program has printed.
#pragma once

#include "base/callback.h"
#include "ui/document/application.h"
#include "ui/document/text_window.h"
#include "ui/lists/list_pane.h"

namespace vexa {

// What a list's window asks of the frame.
class ListHost {
  public:
    virtual ~ListHost() = default;
    // The user is about to do something in the list.
    virtual void userActs() = 0;
    // The user wants larger characters, or smaller ones below 0.
    virtual void zoom(std::int32_t steps) = 0;
};

extern const WindowClass kListWindowClass;

class ListWindow : public TextWindow, private RowPaneHost {
  public:
    // The owner is told when the window has gone, and the object is going to be destroyed.
    using Gone = Callback<void()>;

    ListWindow(MDIframeCL& frame, ListHost& host, ListRows& rows, Application& application, Gone gone);

    ListWindow* asList() override { return this; }
    ListRows& rows() const { return rows_; }
    RowSpan selection() const { return pane_.selection(); }
    RECT screenAreaOfSelection() const { return pane_.screenAreaOfSelection(); }
    // The selected rows go to the clipboard as lines of text.
    void copy();
    void copyAll();
    // Does what the key does in the list, for a command whose own key never comes to it.
    void takeKey(UINT key) { pane_.onKey({.key = key}); }
    void refresh() { pane_.refresh(); }
    void showSelection() { pane_.showSelection(); }
    void refreshFont() override { pane_.refreshFont(); }
    void refreshColours() override { pane_.refreshColours(); }

    void onClosing() override { rows_.closed(); }

  protected:
    bool onCreate() override { return pane_.open(window()); }
    bool onSize(UINT kind) override;
    bool onFocusGained() override;
    void onGone() override;

  private:
    void userActs() override;
    void zoom(std::int32_t steps) override { host_.zoom(steps); }
    void showContextMenu(POINT screenPosition) override;
    void copyRows(RowSpan span);

    ListHost& host_;
    ListRows& rows_;
    ClipboardStore& clipboard_;
    ListPane pane_;
    const Gone gone_;
};

}  // namespace vexa

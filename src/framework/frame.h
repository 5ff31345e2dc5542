// A main window: menu bar, command keys, status bar, and the room that these leave.
#pragma once

#include <string>
#include <vector>

#include "framework/accelerators.h"
#include "framework/menu.h"
#include "framework/window.h"

namespace vexa {

class AppFrameCL : public WindowCL {
  public:
    // Tries a message from the queue as a command key of the frame; true when it was one.
    virtual bool translate(MSG& message);
    // Does a little of what can wait while no message is there, a millisecond at most; false when nothing is left.
    virtual bool workWhileIdle() { return false; }
    // False while a dialog waits for its answer: what it asks about must still be there then, so until it ends no
    // command runs and no window closes, whoever asks for it.
    bool takesCommands() const { return IsWindowEnabled(window()); }

  protected:
    void setMenu(MenuHandle menu);
    void setAccelerators(AcceleratorHandle accelerators) { accelerators_ = std::move(accelerators); }

    // ---- what the program fills in ----

    // A command chosen by its key, or in a menu or the tool bar.
    virtual void runCommand(WORD id, bool fromKey) = 0;
    // None for an item that is no command of the program.
    virtual std::optional<ItemState> itemState(WORD id) const = 0;
    // Shows the help text of the item that the user is looking at; none when he leaves the menu.
    virtual void showItemHelp(std::optional<WORD> id) = 0;
    // The user has pressed F1 on the item of a command in an open menu, which is closed now.
    virtual void explainItem(WORD id) = 0;
    // Puts everything in its place inside the client area.
    virtual void layOut() = 0;
    // The user wants to leave; true when the frame may close.
    virtual bool mayClose() = 0;
    // The last dialog that was in the way has ended.
    virtual void onFree() {}

    bool onCommand(WORD id, bool fromKey) override;
    bool onMenuPopup(HMENU menu, bool isSystemMenu) override;
    bool onMenuSelect(WORD id, UINT flags) override;
    bool onMenuClosed() override;
    bool onHelp(const HELPINFO& request) override;
    bool onSize(UINT kind) override;
    bool onClose() override;
    void onEnabled() override;
    bool onQueryEndSession(bool& agreed) override;
    void onDestroy() override;
    bool onDpiChanged(const RECT& suggested) override;

  private:
    bool mayLeave() { return takesCommands() && mayClose(); }

    AcceleratorHandle accelerators_;
    bool isTranslating_ = false;  // the system is asking whether a key's menu item is enabled
};

}  // namespace vexa

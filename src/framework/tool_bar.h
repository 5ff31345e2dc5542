// A row of picture buttons under the menu.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>
#include <string>
#include <vector>

#include "framework/handle.h"
#include "framework/menu.h"
#include "framework/window.h"

namespace vexa {

struct ImageListTraits {
    using Value = struct _IMAGELIST*;
    static void Close(Value list) { ImageList_Destroy(list); }
};

struct ToolButton {
    WORD id = 0;      // the command; 0 for a gap
    int picture = 0;  // index in the strip
};

// Strips of the same pictures side by side, one bitmap resource a height; magenta shows the bar through.
struct ToolPictures {
    int height = 16;
    int resource = 0;
};

// Pressed buttons arrive at the parent as commands.
class ToolBarCL : public WindowCL {
  public:
    // The text of a button's tooltip.
    using TipOf = std::string (*)(WORD id);

    // The pictures by growing height: the largest that fits the resolution is used.
    ToolBarCL(std::vector<ToolButton> buttons, std::span<const ToolPictures> pictures, TipOf tipOf)
        : buttons_(std::move(buttons)), pictures_(pictures), tipOf_(tipOf) {}
    ~ToolBarCL() override;

    bool open(HWND parent);
    // In pixels.
    int height() const;
    // Greys the buttons whose command may not run now, and shows those pressed whose menu item has a check mark.
    template <class StateOf>
    void refreshButtons(StateOf stateOf) {
        for (const ToolButton& button : buttons_) {
            if (button.id != 0) showState(button.id, stateOf(button.id));
        }
    }
    // Takes over the resolution in force.
    void refreshPictures();

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onCommand(WORD id, bool fromKey) override;
    bool onNotify(NMHDR& notice) override;

  private:
    void showState(WORD id, const ItemState& state);
    const ToolPictures& fittingPictures() const;

    std::vector<ToolButton> buttons_;
    std::span<const ToolPictures> pictures_;
    TipOf tipOf_;
    HWND bar_ = nullptr;
    Handle<ImageListTraits> images_;
    std::string tip_;  // what the tooltip last asked for is kept for as long as it may be shown
};

}  // namespace vexa

// The tabs of the windows inside the frame: which there are, and what the user does with them. Their order is that of
// the frame's windows.
#pragma once

#include <vector>

#include "framework/mdi_frame.h"
#include "ui/frame/tab_rules.h"
#include "ui/frame/tab_strip.h"

namespace vexa {

class DocumentTabs : private TabHost {
  public:
    explicit DocumentTabs(MDIframeCL& frame) : frame_(frame), strip_(*this) {}

    bool open(HWND frame) { return strip_.open(frame); }
    void show(bool visible) { strip_.show(visible); }
    void place(const RECT& area) { strip_.place(area); }
    int height() const { return strip_.height(); }
    void refreshFont() { strip_.refreshFont(); }
    // Shows the windows as they are now.
    void refresh();
    // Takes the wheel over the tabs, which the system gives to the window with the keyboard, and Ctrl+Tab, which goes
    // from window to window by their last use for as long as Ctrl is held.
    bool useMessage(const MSG& message);

  private:
    bool useKey(const MSG& message);
    const MDIchildCL* childOf(UseOrder::Key key) const;
    void chooseTab(std::size_t index) override;
    void closeTab(std::size_t index) override;
    void moveTab(std::size_t from, std::size_t to) override;
    void showTabMenu(POINT screenPosition) override { frame_.showTitleMenu(screenPosition); }

    MDIframeCL& frame_;
    TabStripCL strip_;
    UseOrder uses_;
};

}  // namespace vexa

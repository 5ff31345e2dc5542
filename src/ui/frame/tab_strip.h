// A strip of tabs as a window: draws them and tells what the mouse does with them. Which tabs there are is said from
// outside.
#pragma once

#include <string>
#include <vector>

#include "framework/gdi.h"
#include "framework/scroll_rules.h"
#include "framework/window.h"
#include "ui/frame/tab_rules.h"

namespace vexa {

struct TabLabel {
    std::string text;
    std::string tip;

    bool operator==(const TabLabel&) const = default;
};

// What the user does with a tab, given by its index.
class TabHost {
  public:
    virtual ~TabHost() = default;
    virtual void chooseTab(std::size_t index) = 0;
    virtual void closeTab(std::size_t index) = 0;
    virtual void moveTab(std::size_t from, std::size_t to) = 0;
    virtual void showTabMenu(POINT screenPosition) = 0;
};

class TabStripCL : public WindowCL {
  public:
    explicit TabStripCL(TabHost& host) : host_(host) {}

    bool open(HWND parent);
    // None is the active one for an index after the last.
    void take(std::vector<TabLabel> labels, std::size_t active);
    // In pixels, at the resolution of the frame's monitor.
    int height() const { return height_; }
    // Takes over the font and the resolution in force.
    void refreshFont();
    void turnWheel(int delta);

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC /*dc*/) override { return true; }
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT position) override;
    bool onMouseRelease(POINT position) override;
    bool onCaptureLost() override;
    bool onWheel(const WheelMessage& turn) override;
    bool onContextMenu(std::optional<POINT> screenPosition) override;
    bool onOther(Message& message) override;

  private:
    void layOut();
    void draw(HDC dc, const RECT& area) const;
    void drawTab(HDC dc, std::size_t index, int bottom) const;
    void showTipOf(std::optional<std::size_t> index);

    TabHost& host_;
    std::vector<TabLabel> labels_;
    std::size_t active_ = 0;
    TabLayout layout_;
    FontHandle font_;
    OffScreenBitmap picture_;
    HWND tip_ = nullptr;
    std::optional<std::size_t> tipOf_;
    std::optional<std::size_t> dragged_;
    int height_ = 0;
    WheelSteps wheel_;
};

}  // namespace vexa

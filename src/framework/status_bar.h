// A status bar: panes with texts at the foot of a frame. Each pane is a window whose text is what it shows, so that
// other programs can read it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "framework/gdi.h"
#include "framework/window.h"

namespace vexa {

class StatusPaneCL : public WindowCL {
  public:
    bool open(HWND parent);
    // Highlighted texts stand out in the colours of an alarm.
    void show(const std::string& text, bool highlighted);
    void setFont(HFONT font);
    // What a press of the mouse does; nothing for none.
    void setAction(std::function<void()> action) { action_ = std::move(action); }

  protected:
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC dc) override;
    void onTextChanged() override;
    bool onMousePress(const MouseButtonMessage& press) override;

  private:
    void draw(HDC dc, RECT area) const;

    HFONT font_ = nullptr;
    bool highlighted_ = false;
    std::function<void()> action_;
    OffScreenBitmap picture_;
};

// The first pane takes the room that the others leave; those are as wide as the widest text they will show, and take
// no room while they show none.
class StatusBarCL : public WindowCL {
  public:
    // One text for each pane after the first, at its widest.
    explicit StatusBarCL(std::vector<std::string> widestTexts) : widestTexts_(std::move(widestTexts)) {}

    bool open(HWND parent);
    void setPane(std::size_t pane, const std::string& text, bool highlighted = false);
    // What a press of the mouse on the pane does, from the time on when the bar is open.
    void setPaneAction(std::size_t pane, std::function<void()> action);
    // In pixels, at the resolution of the frame's monitor.
    int height() const { return height_; }
    // Takes over the font and the resolution in force.
    void refreshFont();

  protected:
    bool onCreate() override;
    bool onSize(UINT kind) override;

  private:
    void layOut();

    std::vector<std::string> widestTexts_;
    std::vector<std::unique_ptr<StatusPaneCL>> panes_;
    FontHandle font_;
    int height_ = 0;
    int gap_ = 0;
};

}  // namespace vexa

// A window that shows one topic: its fixed part above the part that scrolls, links for mouse and keyboard, and a
// selection to be copied. The viewer has one inside itself and one as its pop-up.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "framework/gdi.h"
#include "framework/window.h"
#include "framework/window_scroll_bars.h"
#include "quickhelp/topics/help_browser.h"
#include "quickhelp/topics/topic_view.h"
#include "ui/help/topic_device.h"
#include "ui/help/topic_painter.h"

namespace vexa {

class TopicPane;

// What a pane asks of the viewer.
class TopicPaneHost {
  public:
    virtual ~TopicPaneHost() = default;
    virtual void followLink(TopicPane& pane, const topics::Link& link) = 0;
    // A key that the pane has no use for; false when the viewer has none either.
    virtual bool useKey(const KeyMessage& key) = 0;
    virtual bool useMnemonic(unsigned char character) = 0;
    virtual void paneScrolled(TopicPane& pane, int y) = 0;
    virtual void panePressed(TopicPane& pane) = 0;
    virtual void paneLeft(TopicPane& pane) = 0;  // the keyboard has gone elsewhere
};

class TopicPane : public WindowCL {
  public:
    explicit TopicPane(TopicPaneHost& host) : host_(host) {}

    bool open(HWND parent);
    // Opens beside a point of the screen, as large as its topic needs.
    bool openPopUp(HWND owner, const topics::ShownTopic& topic, POINT screenPosition);
    void closePopUp() { destroy(); }
    // Where it was scrolled to before, or at the paragraph that the topic was asked for.
    void show(const topics::ShownTopic& topic);
    const topics::ShownTopic& shown() const { return shown_; }
    void refreshColours();
    void copy();
    void selectAll();
    // Selects the next occurrence of a text after the selection; false when there is none.
    bool findNext(const std::string& text);
    // On the screen, below the link that was followed last.
    POINT linkPosition() const { return linkPosition_; }

  protected:
    bool onSize(UINT kind) override;
    bool onPaint(HDC dc, const RECT& update) override;
    bool onEraseBackground(HDC) override { return true; }
    bool onSetCursor(UINT hitTest) override;
    bool onFocusGained() override;
    bool onFocusLost() override;
    bool onKey(const KeyMessage& key) override;
    bool onCharacter(unsigned char, UINT) override { return true; }
    bool onSystemCharacter(unsigned char character) override { return host_.useMnemonic(character); }
    bool onMousePress(const MouseButtonMessage& press) override;
    bool onMouseMove(POINT position) override;
    bool onMouseRelease(POINT position) override;
    bool onCaptureLost() override;
    bool onWheel(const WheelMessage& turn) override;
    bool onScroll(int bar, UINT request) override;

  private:
    friend struct TopicPaneKeys;  // the table of keys

    struct Part {
        topics::LaidRegion* region;
        std::vector<topics::LinkArea>* areas;
        POINT origin;
        const TopicColours* colours;
    };
    topics::LayoutSource source() { return {*shown_.file, *shown_.topic, device_}; }
    bool hasTopic() const { return shown_.file != nullptr; }
    void take(const topics::ShownTopic& topic);
    void layOut(int width);
    ScrollState scrollState(int bar) const;
    void showScrollBars();
    void scrollBar(int bar, int position);
    int margin() const;
    int fixedHeight() const;
    RECT scrollingArea() const;
    Part partAt(POINT position);
    Part fixedPart();
    Part scrollingPart();
    void draw(HDC dc);
    void drawPart(HDC dc, const Part& part, const RECT& visible);
    std::optional<int> linkAt(POINT position);
    topics::TextPosition positionAt(POINT position);
    void select(topics::TextPosition from, topics::TextPosition to);
    void scrollTo(int x, int y);
    void scrollBy(int y) { scrollTo(scroll_.x, scroll_.y + y); }
    int pageHeight() const;
    void goToLink(bool forward);
    void followLink(int link);
    void bringIntoView(int top, int bottom);
    std::vector<topics::LinkArea> allAreas() const;

    // ---- keys ----
    void lineUp();
    void lineDown();
    void pageUp() { scrollBy(-pageHeight()); }
    void pageDown() { scrollBy(pageHeight()); }
    void toTop() { scrollTo(scroll_.x, 0); }
    void toBottom() { scrollTo(scroll_.x, layout_.scrolling.height); }
    void toNextLink() { goToLink(true); }
    void toPreviousLink() { goToLink(false); }
    void followFocusedLink();

    TopicPaneHost& host_;
    topics::ShownTopic shown_;
    TopicDevice device_;
    TopicColours fixedColours_, colours_;
    topics::TopicLayout layout_;
    std::vector<topics::LinkArea> fixedAreas_;
    std::vector<topics::LinkArea> scrollingAreas_;
    OffScreenBitmap picture_;
    WindowScrollBars scrollBars_{WindowScrollBars::Horizontal::WhenNeeded};
    POINT scroll_ = {};
    topics::TextPosition anchor_, caret_;  // of the selection
    int focusedLink_ = -1;
    std::optional<int> pressedLink_;
    POINT linkPosition_ = {};
    bool isSelecting_ = false;
    bool isPopUp_ = false;
};

}  // namespace vexa

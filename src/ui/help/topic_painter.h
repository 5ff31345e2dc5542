// Draws a topic that is laid out.
#pragma once

#include <windows.h>

#include <optional>

#include "quickhelp/topics/topic_layout.h"
#include "ui/help/topic_device.h"

namespace vexa {

// In the user's colours; the author's hold where he has not asked for high contrast.
struct TopicColours {
    COLORREF text = 0;
    COLORREF background = 0;
    COLORREF link = 0;
    bool areAuthors = true;
};
// Those of the system, and behind the text what the author wants where that holds.
TopicColours ScreenColours(bool isPopUp, const std::optional<topics::Colour>& background);

class TopicPainter {
  public:
    // All must live as long as the painter does.
    TopicPainter(HDC dc, const topics::LayoutSource& source, TopicDevice& device, const TopicColours& colours)
        : dc_(dc), source_(source), device_(device), colours_(colours) {}

    // With the region's upper left corner at the origin; only what lies in the visible part is drawn.
    void draw(const topics::LaidRegion& region, POINT origin, const RECT& visible);

  private:
    COLORREF colourOf(const topics::HelpFont& font) const;
    void drawText(const topics::LaidRun& run, const RECT& box, int baseline);
    void underline(const RECT& box, int y, bool isDotted, COLORREF colour);
    void drawPicture(const topics::PictureUse& use, const RECT& box);
    void drawButton(const topics::PictureUse& use, RECT box);
    void drawPixels(const topics::Picture& picture, const RECT& box);
    void playMetafile(const topics::Picture& picture, const RECT& box);

    HDC dc_;
    const topics::LayoutSource& source_;
    TopicDevice& device_;
    const TopicColours& colours_;
};

}  // namespace vexa

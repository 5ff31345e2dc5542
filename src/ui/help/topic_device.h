// Fonts and pictures of a help file for the screen, and what the layout asks about them.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "framework/gdi.h"
#include "quickhelp/topics/help_file.h"
#include "quickhelp/topics/picture.h"
#include "quickhelp/topics/topic_layout.h"

namespace vexa {

class TopicDevice : public topics::TextMeasure {
  public:
    // Without a device to measure on, that of the screen.
    explicit TopicDevice(HDC device = nullptr)
        : screen_(device ? nullptr : CreateCompatibleDC(nullptr)), dc_(device ? device : screen_.get()) {}

    // Fonts and pictures of the topic before are given back.
    void begin(std::shared_ptr<const topics::HelpFile> file, int dpi);
    HFONT fontOf(const topics::HelpFont& font);
    // Decoded once; the topic that uses the picture must live on.
    const topics::Picture& pictureOf(const topics::PictureUse& use);

    int dpi() override { return dpi_; }
    int width(const topics::HelpFont& font, std::string_view text) override;
    topics::FontHeight height(const topics::HelpFont& font) override;
    topics::Extent pictureExtent(const topics::PictureUse& picture) override;

  private:
    MemoryDc screen_;
    HDC dc_;
    int dpi_ = 96;
    std::shared_ptr<const topics::HelpFile> file_;
    std::map<const topics::HelpFont*, FontHandle> fonts_;
    std::map<const topics::PictureUse*, topics::Picture> pictures_;
};

// The font of buttons inside topics.
const topics::HelpFont& ButtonFont();

}  // namespace vexa

// A device on which every character is a cell of 8 by 16 pixels, and a half point is a pixel.
#pragma once

#include "quickhelp/topics/picture.h"
#include "quickhelp/topics/topic_layout.h"

namespace vexa::topics::test {

class GridMeasure : public TextMeasure {
  public:
    explicit GridMeasure(const HelpFile& file) : file_(file) {}

    int dpi() override { return 144; }
    int width(const HelpFont&, std::string_view text) override { return 8 * static_cast<int>(text.size()); }
    FontHeight height(const HelpFont&) override { return {12, 4}; }
    Extent pictureExtent(const PictureUse& picture) override {
        return PictureExtent(file_.pictureBytes(picture), dpi());
    }

  private:
    const HelpFile& file_;
};

}  // namespace vexa::topics::test

// A topic laid out at a width: where each piece of text, picture, rule and link
// stands. All positions are pixels from the upper left corner of their region.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_file.h"
#include "quickhelp/topics/help_types.h"
#include "quickhelp/topics/topic.h"

namespace vexa::topics {

struct FontHeight {
    int ascent = 0;
    int descent = 0;
};

// What the layout asks the device that a topic is shown on.
class TextMeasure {
  public:
    virtual ~TextMeasure() = default;

    virtual int dpi() = 0;
    virtual int width(const HelpFont& font, std::string_view text) = 0;
    virtual FontHeight height(const HelpFont& font) = 0;
    // The size at which a picture is shown; a button's includes its edges.
    virtual Extent pictureExtent(const PictureUse& picture) = 0;
};

struct LayoutSource {
    const HelpFile& file;
    const Topic& topic;
    TextMeasure& measure;

    int pixels(int halfPoints) const { return halfPoints * measure.dpi() / 144; }
};

// Characters of one paragraph, or one picture, in one look.
struct LaidRun {
    Box box;
    int baseline = 0;
    std::uint32_t paragraph = 0;
    std::uint32_t begin = 0;
    std::uint32_t length = 0;
    int font = 0;
    int link = -1;
    int picture = -1;
};

// The characters of a line end in front of end. Its runs stand in a row in the
// region's list.
struct LaidLine {
    Box box;
    std::uint32_t paragraph = 0;
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::size_t firstRun = 0;
    std::size_t runCount = 0;
};

struct LaidRegion {
    int width = 0;  // of what was laid out; wider than asked for where lines do not wrap
    int height = 0;
    std::vector<LaidLine> lines;
    std::vector<LaidRun> runs;
    std::vector<Box> rules;  // filled boxes: borders of paragraphs
};

struct TopicLayout {
    LaidRegion fixed;  // stays while the other scrolls; empty in most topics
    LaidRegion scrolling;
};

TopicLayout LayOutTopic(const LayoutSource& source, int width);
// All in one region, for paper.
LaidRegion LayOutWhole(const LayoutSource& source, int width);

}  // namespace vexa::topics

// What a viewer asks of a topic that is laid out: the links under the mouse and in the order of the keyboard, the
// selection, and where a text stands.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/topic_layout.h"

namespace vexa::topics {

// In front of a character of a paragraph of the topic.
struct TextPosition {
    std::uint32_t paragraph = 0;
    std::uint32_t character = 0;

    auto operator<=>(const TextPosition&) const = default;
};

struct LinkArea {
    Box box;
    int link = -1;  // index in Topic::links
};

// In the order of the text, hotspots of pictures after the picture. A link that is broken into lines has several.
std::vector<LinkArea> LinkAreas(const LaidRegion& region, const Topic& topic);
std::optional<int> LinkAt(const std::vector<LinkArea>& areas, int x, int y);
// The link that the keyboard goes to from one (-1: from none), round at the ends; -1 where there are none.
int NextLink(const std::vector<LinkArea>& areas, int link, bool forward);

// The position nearest to a point of the region.
TextPosition PositionAt(const LaidRegion& region, const LayoutSource& source, int x, int y);
// What to show as marked between two positions, of which the first is not after the second.
std::vector<Box> SelectionBoxes(const LaidRegion& region, const LayoutSource& source, TextPosition from,
                                TextPosition to);
// The marked text for the clipboard: lines end in CR LF, cells of a row are apart by tabs, pictures are left out.
std::string TextBetween(const Topic& topic, TextPosition from, TextPosition to);
// The first occurrence of a text at or after a position; none for an empty text. Letter case counts only where asked.
std::optional<TextPosition> FindText(const Topic& topic, std::string_view text, TextPosition from, bool matchCase);
// The height at which a position's line begins, none where the region does not hold it.
std::optional<int> TopOf(const LaidRegion& region, TextPosition position);
// Where each page of a region begins, of a height that is above 0, and in the end the region's own. A line or a picture
// is divided only if it is higher than a page. Nothing but 0 for an empty region; what lies after 10,000 pages is left
// out.
std::vector<int> PageTops(const LaidRegion& region, int height);
// The paragraph that an offset leads to, for jumps into the middle of a topic.
std::uint32_t ParagraphAt(const Topic& topic, std::uint32_t offset);

}  // namespace vexa::topics

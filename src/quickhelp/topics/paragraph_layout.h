// Breaks one paragraph into lines.
#pragma once

#include "quickhelp/topics/topic_layout.h"

namespace vexa::topics {

// The area between two sides that paragraphs are stacked in.
struct Sides {
    int left = 0;
    int right = 0;
};

// Adds the paragraph's lines, runs and rules to the region from top on. The
// bottom of what was added, spacing included.
int LayOutParagraph(const LayoutSource& source, std::uint32_t paragraph, Sides sides, int top, LaidRegion& region);

}  // namespace vexa::topics

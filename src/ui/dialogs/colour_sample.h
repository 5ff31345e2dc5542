// The few lines of source text that "Color Setup" shows in the colours being chosen.
#pragma once

#include <vector>

#include "document/view/row_renderer.h"

namespace vexa {

// Text in the colour of every element; the last row is marked. Without highlighting the text has that of default text.
std::vector<ViewRow> ColourSampleRows(bool highlighting);

}  // namespace vexa

// Which lines of two texts differ, for people to read.
#pragma once

#include <string>
#include <vector>

#include "document/view/text_exchange.h"

namespace vexa {

// A row for each line that only one of the texts has, in their order: "Line 12 < ..." for the first text's, "Line 12 >
// ..." for the second's. Both are numbered as the first text is, a line of the second by the one that it stands before.
// Rows beyond the most are left out.
std::vector<std::string> LineDifferences(const LineViews& mine, const LineViews& theirs, std::size_t mostRows);

}  // namespace vexa

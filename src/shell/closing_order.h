// The order in which the documents are closed at the end, which decides which of them come back at the next start.
#pragma once

#include <cstddef>
#include <vector>

namespace vexa {

// Documents are counted from the one used last, which is 0. Closed in this order, the three used last are those that
// the start-up files remember, and the one used last is opened last and so active again.
std::vector<std::size_t> ClosingOrder(std::size_t documents);

}  // namespace vexa

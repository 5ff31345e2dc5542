#include "shell/closing_order.h"

#include <algorithm>

#include "shell/startup_files.h"

namespace vexa {

// The slots are taken in turn and opened from the last to the first, so the document used last belongs into the first.
std::vector<std::size_t> ClosingOrder(std::size_t documents) {
    constexpr std::size_t kSlots = StartupFiles::kSlots;
    const std::size_t remembered = std::min(documents, kSlots);
    std::vector<std::size_t> order;
    for (std::size_t rank = documents; rank > remembered; --rank)
        order.push_back(rank - 1);
    const std::size_t firstSlot = order.size();
    for (std::size_t i = 0; i < remembered; ++i)
        order.push_back((firstSlot + i) % kSlots);
    return order;
}

}  // namespace vexa

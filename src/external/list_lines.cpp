#include "external/list_lines.h"

#include <algorithm>

namespace vexa {

bool ListLines::add(std::string_view text) {
    if (size() >= kMostLines) return false;
    addLast(text);
    return true;
}

void ListLines::addLast(std::string_view text) {
    text = text.substr(0, kLongestLine);
    if (kBlockSize - used_ < text.size() + 1) {
        blocks_.push_back(std::make_unique_for_overwrite<char[]>(kBlockSize));
        used_ = 0;
    }
    char* const start = blocks_.back().get() + used_;
    start[text.copy(start, text.size())] = '\0';
    lines_.push_back({static_cast<std::uint32_t>(blocks_.size() - 1), static_cast<std::uint16_t>(used_),
                      static_cast<std::uint16_t>(text.size())});
    used_ += text.size() + 1;
    longest_ = std::max(longest_, text.size());
}

void ListLines::clear() {
    *this = ListLines();
}

}  // namespace vexa

#include "ui/frame/tab_rules.h"

#include <algorithm>
#include <numeric>

namespace vexa {

namespace {

using Keys = std::vector<const void*>;

bool Has(std::span<const void* const> keys, const void* key) {
    return std::ranges::find(keys, key) != keys.end();
}

void Forget(Keys& keys, std::span<const void* const> open) {
    std::erase_if(keys, [open](const void* key) { return !Has(open, key); });
}

void Move(Keys& keys, std::size_t from, std::size_t to) {
    const void* const moved = keys[from];
    keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(from));
    keys.insert(keys.begin() + static_cast<std::ptrdiff_t>(to), moved);
}

}  // namespace

// ---- last use ----------------------------------------------------------------------------------------------------

void UseOrder::take(std::span<const Key> open) {
    const Keys before = keys_;
    Forget(keys_, open);
    for (const void* key : open) {
        if (!Has(keys_, key)) keys_.insert(keys_.begin(), key);
    }
    if (keys_ != before) walk_.reset();
}

void UseOrder::use(Key key) {
    const auto found = std::ranges::find(keys_, key);
    if (!walk_ && found != keys_.end()) Move(keys_, static_cast<std::size_t>(found - keys_.begin()), 0);
}

UseOrder::Key UseOrder::step(bool back) {
    if (keys_.empty()) return nullptr;
    walk_ = (walk_.value_or(0) + (back ? keys_.size() - 1 : 1)) % keys_.size();
    return keys_[*walk_];
}

void UseOrder::endWalk() {
    if (walk_) Move(keys_, *walk_, 0);
    walk_.reset();
}

// ---- layout ------------------------------------------------------------------------------------------------------

void TabLayout::take(std::vector<int> widths, int room) {
    widths_ = std::move(widths);
    room_ = room;
    first_ = std::min(first_, lastFirst());
}

int TabLayout::widthOf(std::size_t from, std::size_t to) const {
    return std::accumulate(widths_.begin() + static_cast<std::ptrdiff_t>(from),
                           widths_.begin() + static_cast<std::ptrdiff_t>(to), 0);
}

// The first tab from which on all tabs have room; the last one if even that is too wide.
std::size_t TabLayout::lastFirst() const {
    std::size_t first = widths_.size();
    while (first > 0 && (first == widths_.size() || widthOf(first - 1, widths_.size()) <= room_))
        --first;
    return first;
}

void TabLayout::scroll(int tabs) {
    const auto wanted = static_cast<std::ptrdiff_t>(first_) + tabs;
    first_ = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(wanted, 0, static_cast<std::ptrdiff_t>(lastFirst())));
}

void TabLayout::bringIn(std::size_t index) {
    if (index < first_) first_ = index;
    while (first_ < index && spanOf(index).right > room_)
        ++first_;
}

TabLayout::Span TabLayout::spanOf(std::size_t index) const {
    const int left = index < first_ ? -widthOf(index, first_) : widthOf(first_, index);
    return {left, left + widths_[index]};
}

std::optional<std::size_t> TabLayout::at(int x) const {
    for (std::size_t i = first_; i < widths_.size() && x >= 0; ++i) {
        if (x < spanOf(i).right) return i;
    }
    return std::nullopt;
}

bool TabLayout::hasMoreAtRight() const {
    return widthOf(first_, widths_.size()) > room_;
}

std::optional<std::size_t> TabLayout::dropAt(int x, std::size_t dragged) const {
    const std::optional<std::size_t> over = at(x);
    if (!over || *over == dragged) return std::nullopt;
    const int width = widths_[dragged];
    const bool liesUnder = *over < dragged ? x < spanOf(*over).left + width : x >= spanOf(*over).right - width;
    return liesUnder ? over : std::nullopt;
}

}  // namespace vexa

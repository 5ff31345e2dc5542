#include "document/text/dyn_array.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include "base/platform.h"

namespace vexa {

namespace {

// The internal faults, by the line numbers under which they have always been reported.
enum Fault { kDetachOutOfRange = 145, kPutOutOfRange = 190, kSlotOccupied = 236, kNoSlot = 242, kNoMemory = 485 };

void Report(Fault fault) {
    platform::DebugOutput("Error in File: VXEDYN01  Line: " + std::to_string(static_cast<int>(fault)));
}

}  // namespace

// ---- GapVector ---------------------------------------------------------------------------------------------------

void GapVector::moveGapTo(std::int32_t to) {
    const auto begin = items_.begin();
    if (to < gapStart_) {
        std::copy_backward(begin + to, begin + gapStart_, begin + gapStart_ + gapLength_);
    } else {
        std::copy(begin + gapStart_ + gapLength_, begin + to + gapLength_, begin + gapStart_);
    }
    gapStart_ = to;
}

void GapVector::widenGap(std::int32_t least) {
    moveGap(size());
    const std::size_t wider = std::max({std::size_t{64}, items_.size() / 2, static_cast<std::size_t>(least)});
    items_.resize(items_.size() + wider);
    gapLength_ += static_cast<std::int32_t>(wider);
}

void GapVector::insert(std::int32_t i, TextLine* item) {
    reserve(1);
    moveGap(i);
    items_[static_cast<std::size_t>(gapStart_++)] = item;
    --gapLength_;
    ++size_;
}

TextLine* GapVector::remove(std::int32_t i) {
    moveGap(i);
    --size_;
    return items_[static_cast<std::size_t>(i + gapLength_++)];
}

void GapVector::append(std::int32_t count, TextLine* item) {
    reserve(count);
    moveGap(size());
    std::fill_n(items_.begin() + gapStart_, count, item);
    gapStart_ += count;
    gapLength_ -= count;
    size_ += count;
}

// ---- DynArray ----------------------------------------------------------------------------------------------------

DynArray::DynArray(std::int32_t growBy) : capacity_(growBy), growBy_(growBy) {}

DynArray::~DynArray() {
    clear();
}

bool DynArray::isVacant(std::int32_t i) const {
    return i >= 0 && i < capacity_ && occupied(i) == nullptr;
}

// The slots kept never end in a vacant one, which gives the plain answer without a search.
std::int32_t DynArray::lastUsed(LastUsed mode) const {
    std::int32_t i = std::max(slots_.size() - 1, 0);
    if (mode == LastUsed::Text) {
        while (i > 0 && !slots_[i]->hasContents())
            --i;
    }
    return i;
}

bool DynArray::grow(std::int32_t capacity) {
    capacity_ = capacity;
    grown_ = true;
    return true;
}

// Makes slot i exist, growing by one step, or to a step beyond i when one step does not reach it.
bool DynArray::makeRoom(std::int32_t i) {
    if (i < capacity_) return true;
    const std::int64_t step = static_cast<std::int64_t>(capacity_) + growBy_;
    const std::int64_t wanted = step > i ? step : static_cast<std::int64_t>(i) + growBy_;
    if (wanted <= i || wanted > std::numeric_limits<std::int32_t>::max()) {
        Report(kNoMemory);
        return false;
    }
    return grow(static_cast<std::int32_t>(wanted));
}

// Makes slots below i real, as vacant ones, and room for one more.
bool DynArray::reach(std::int32_t i) try {
    const std::int32_t missing = i - slots_.size();
    if (missing < 0) return true;
    unchanged_.keep(slots_.size(), 0);
    slots_.reserve(missing + 1);
    if (missing > 0) slots_.append(missing, &vacant_);
    return true;
} catch (const std::bad_alloc&) {
    Report(kNoMemory);
    return false;
}

void DynArray::reserve(std::int32_t i) {
    slots_.reserve(std::max(i + 1 - slots_.size(), 1));
}

// A line that comes from the history may come from a time with other rules of colouring.
TextLine* DynArray::keep(LinePtr line) {
    if (line == nullptr) return &vacant_;
    line->effect.isCurrent = false;
    return line.release();
}

bool DynArray::put(LinePtr line, std::int32_t i) {
    if (i < 0) return false;
    if (!makeRoom(i)) {
        Report(kPutOutOfRange);
        return false;
    }
    if (!reach(i)) return false;
    noteMovedFrom(i);
    if (i == slots_.size()) {
        slots_.insert(i, keep(std::move(line)));
    } else {
        noteChanged(i);
        TextLine* const old = occupied(i);
        slots_[i] = keep(std::move(line));
        if (old) LineDeleter()(old);
    }
    trim();
    return true;
}

bool DynArray::putIfVacant(LinePtr line, std::int32_t i) {
    if (i < 0) return false;
    if (!makeRoom(i)) {
        Report(kNoSlot);
        return false;
    }
    if (occupied(i)) {
        Report(kSlotOccupied);
        return false;
    }
    return line == nullptr || put(std::move(line), i);
}

bool DynArray::append(LinePtr line) {
    return putIfVacant(std::move(line), lastUsed(LastUsed::Plain) + 1);
}

bool DynArray::insertAt(LinePtr line, std::int32_t i) {
    if (i < 0) return false;
    if (i >= capacity_) return putIfVacant(std::move(line), i);
    const std::int32_t last = lastUsed(LastUsed::Plain);
    if (last + 1 >= capacity_ && !makeRoom(last + 1)) return false;
    if (i >= slots_.size()) return put(std::move(line), i);
    noteMovedFrom(i);
    unchanged_.keep(i, slots_.size() - i);
    slots_.insert(i, keep(std::move(line)));
    return true;
}

LinePtr DynArray::take(std::int32_t i) {
    TextLine* const line = occupied(i);
    noteMovedFrom(i);
    noteChanged(i);
    if (i < slots_.size()) slots_.remove(i);
    trim();
    return LinePtr(line);
}

void DynArray::trim() {
    while (slots_.size() > 0 && slots_[slots_.size() - 1] == &vacant_) {
        slots_.remove(slots_.size() - 1);
        unchanged_.keep(slots_.size(), 0);
    }
}

LinePtr DynArray::detach(std::int32_t i) {
    if (i < 0) return nullptr;
    if (i >= capacity_) {
        Report(kDetachOutOfRange);
        return nullptr;
    }
    return take(i);
}

bool DynArray::removeAt(std::int32_t i) {
    if (i < 0 || i >= capacity_) return false;
    // The caller holds the pointer and owns the line from here on.
    static_cast<void>(take(i).release());
    return true;
}

bool DynArray::takeGrown() {
    return std::exchange(grown_, false);
}

std::int32_t DynArray::takeMovedFrom() {
    return std::exchange(movedFrom_, INT32_MAX);
}

void DynArray::clear() {
    noteMovedFrom(0);
    noteAllChanged();
    for (std::int32_t i = 0; i < slots_.size(); ++i) {
        if (TextLine* line = occupied(i)) LineDeleter()(line);
    }
    slots_ = GapVector();
    capacity_ = growBy_;
    grown_ = false;
}

}  // namespace vexa

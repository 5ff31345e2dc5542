// The growable array of lines.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "document/text/text_line.h"

namespace vexa {

// What counts as a line in use.
enum class LastUsed {
    Plain,  // any line that was stored
    Text    // any line that was stored and is not empty, or has an end that is kept
};

// How many lines at the beginning and at the end of a sequence are what they were, whatever was changed, inserted or
// removed between them.
struct UnchangedLines {
    std::int32_t before = INT32_MAX;
    std::int32_t after = INT32_MAX;

    void keep(std::int32_t first, std::int32_t last) {
        before = std::min(before, first);
        after = std::min(after, last);
    }
};

// A sequence of pointers with a gap where the last change was, so that lines come and go at one position without moving
// all that follow. Knows nothing of lines.
class GapVector {
  public:
    std::int32_t size() const { return size_; }
    TextLine*& operator[](std::int32_t i) { return items_[offset(i)]; }
    TextLine* operator[](std::int32_t i) const { return items_[offset(i)]; }
    void insert(std::int32_t i, TextLine* item);
    TextLine* remove(std::int32_t i);
    // Makes room for that many more. Throws std::bad_alloc and is then unchanged, as append is.
    void reserve(std::int32_t count) {
        if (gapLength_ < count) widenGap(count);
    }
    void append(std::int32_t count, TextLine* item);

  private:
    std::size_t offset(std::int32_t i) const { return static_cast<std::size_t>(i < gapStart_ ? i : i + gapLength_); }
    void moveGap(std::int32_t to) {
        if (to != gapStart_) moveGapTo(to);
    }
    void moveGapTo(std::int32_t to);
    void widenGap(std::int32_t least);

    std::vector<TextLine*> items_;
    std::int32_t size_ = 0;  // without the gap; kept, as every look at a line asks for it
    std::int32_t gapStart_ = 0;
    std::int32_t gapLength_ = 0;
};

// Slots of lines. A vacant slot reads as the array's own empty line, so reading any slot yields a line. The array owns
// the lines in its slots. A negative index does nothing and gives 0, none or false. Slots after the last stored line
// are all vacant and are only counted, not kept. Faults of the caller are told to the debugger.
class DynArray {
  public:
    static constexpr std::int32_t kDefaultGrowth = 10;

    explicit DynArray(std::int32_t growBy = kDefaultGrowth);
    ~DynArray();
    DynArray(const DynArray&) = delete;
    DynArray& operator=(const DynArray&) = delete;

    std::int32_t capacity() const { return capacity_; }
    std::int32_t growBy() const { return growBy_; }
    void setGrowBy(std::int32_t slots) { growBy_ = slots; }

    // The line in a slot, or none beyond the capacity.
    const TextLine* at(std::int32_t i) const {
        if (i >= 0 && i < slots_.size()) return slots_[i];
        return i >= 0 && i < capacity_ ? &vacant_ : nullptr;
    }
    // The line of a slot that is not vacant; none for a vacant slot or beyond the capacity.
    TextLine* occupied(std::int32_t i) const {
        if (i < 0 || i >= slots_.size() || slots_[i] == &vacant_) return nullptr;
        return slots_[i];
    }
    bool isVacant(std::int32_t i) const;
    std::int32_t lastUsed(LastUsed mode) const;

    // Each grows the array where it must and says whether the line was stored; one that was not is destroyed.
    bool put(LinePtr line, std::int32_t i);          // whatever the slot held, which is destroyed
    bool putIfVacant(LinePtr line, std::int32_t i);  // no line leaves the slot vacant
    bool append(LinePtr line);
    bool insertAt(LinePtr line, std::int32_t i);  // moves the lines from i on up by one

    // Makes sure that a line can then be put into slot i, or inserted there, whatever memory is left by then: a line
    // on its way back into the text must not be lost. std::bad_alloc, and nothing is changed.
    void reserve(std::int32_t i);

    // Moves the lines after i down by one and hands the line over; none for a vacant slot.
    LinePtr detach(std::int32_t i);
    // The same, for a caller that already holds a pointer to the line and now owns it.
    bool removeAt(std::int32_t i);

    // Whether the array has grown since this was last asked.
    bool takeGrown();
    // The first slot of those whose lines have moved since this was last asked; INT32_MAX when none have.
    std::int32_t takeMovedFrom();
    // The slots that hold what they held when this was last asked; at the end, those up to the last stored line.
    UnchangedLines takeUnchanged() { return std::exchange(unchanged_, {}); }
    // The line in the slot is changed from outside; or all lines are.
    void noteChanged(std::int32_t i) { unchanged_.keep(i, std::max(slots_.size() - 1 - i, 0)); }
    void noteAllChanged() { unchanged_ = {0, 0}; }
    // Destroys every line and makes the array as new.
    void clear();

  private:
    bool makeRoom(std::int32_t i);
    bool grow(std::int32_t capacity);
    bool reach(std::int32_t i);
    LinePtr take(std::int32_t i);
    TextLine* keep(LinePtr line);
    void trim();
    void noteMovedFrom(std::int32_t i) { movedFrom_ = std::min(movedFrom_, i); }

    TextLine vacant_;
    GapVector slots_;
    std::int32_t capacity_ = 0;
    std::int32_t growBy_;
    bool grown_ = false;
    std::int32_t movedFrom_ = INT32_MAX;
    UnchangedLines unchanged_;
};

}  // namespace vexa

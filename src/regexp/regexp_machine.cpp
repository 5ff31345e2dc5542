#include "regexp/regexp_machine.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "base/ascii.h"
#include "regexp/regexp.h"
#include "regexp/regexp_program.h"

namespace vexa::regexp {

Machine::Machine(const Plan& plan, const char* subject)
    : plan_(plan), subject_(subject), budget_(plan.tuning.stepsBeforeMemo) {}

const char* Machine::match(NodeIndex index, const char* place) {
    used_ = 0;
    for (;;) {
        const PlanNode& current = node(index);
        if (current.memo != PlanNode::kNoMemo && current.step != Step::Loop && !enter(current, place)) {
            place = nullptr;
        } else {
            switch (current.step) {
                case Step::End:
                    return place;
                case Step::LineStart:
                    place = place == subject_ ? place : nullptr;
                    break;
                case Step::LineEnd:
                    place = *place == '\0' ? place : nullptr;
                    break;
                case Step::Set:
                    place = current.first.has(*place) ? place + 1 : nullptr;
                    break;
                case Step::Literal:
                    place = skipLiteral(current, place);
                    break;
                case Step::WordStart:
                    place = isWordStart(place) ? place : nullptr;
                    break;
                case Step::WordEnd:
                    place = kWordCharacters.has(*place) ? nullptr : place;
                    break;
                case Step::Save:
                    place = push({offset(place), 0, index}) ? place : nullptr;
                    break;
                case Step::Loop:
                    place = enterLoop(index, place);
                    break;
                case Step::Choice:
                    index = enterChoice(index, place);
                    if (index != kNone) continue;
                    place = nullptr;
                    break;
                case Step::Broken:
                    stop(current.text.data());
                    return nullptr;
            }
        }
        index = current.next;
        if (place == nullptr && !resume(index, place)) return nullptr;
    }
}

// The position that was kept last is the one that counts: the machine unwinds from the innermost.
Machine::Slots Machine::saved() const {
    Slots slots{};
    for (std::size_t i = used_; i-- > 0;) {
        const PlanNode& save = node(frames_[i].node);
        if (save.step == Step::Save && slots[save.slot] == nullptr) slots[save.slot] = subject_ + frames_[i].position;
    }
    return slots;
}

const char* Machine::skipLiteral(const PlanNode& literal, const char* place) const {
    if (plan_.letterCase == LetterCase::Sensitive) {
        for (const char c : literal.text)
            if (*place++ != c) return nullptr;
    } else {
        for (const char c : literal.text)
            if (LowerAscii(*place++) != LowerAscii(c)) return nullptr;
    }
    return place;
}

bool Machine::isWordStart(const char* place) const {
    return kWordCharacters.has(*place) && (place == subject_ || !kWordCharacters.has(place[-1]));
}

// The first alternative, from this one on, that may match at the place.
NodeIndex Machine::viableChoice(NodeIndex choice, const char* place) const {
    while (!node(node(choice).operand).first.has(*place)) {
        if (node(choice).lastChoice) return kNone;
        choice = node(choice).next;
    }
    return choice;
}

NodeIndex Machine::enterChoice(NodeIndex choice, const char* place) {
    const NodeIndex viable = viableChoice(choice, place);
    if (viable == kNone) return kNone;
    if (!node(viable).lastChoice) {
        const NodeIndex other = viableChoice(node(viable).next, place);
        if (other != kNone && !push({offset(place), 0, other})) return kNone;
    }
    return node(viable).operand;
}

const char* Machine::enterLoop(NodeIndex index, const char* place) {
    const PlanNode& loop = node(index);
    if (loop.foulOperand) ReportRegExpError(kInternalFoulup);
    if (memo_) return rememberLoop(index, place);
    const char* end = place;
    while (loop.repeated.has(*end))
        ++end;
    charge(1 + (end - place) / kCharactersPerStep);
    if (end - place < loop.minimum) return nullptr;
    return tryRepetitions(index, loop.possessive ? end : place + loop.minimum, end);
}

// All loops that begin within a run of its characters have the same last end, so the ends that have been tried reach
// from any of them up to that one, and only those before them are new.
const char* Machine::rememberLoop(NodeIndex index, const char* place) {
    const PlanNode& loop = node(index);
    if (loop.minimum > 0 && !loop.repeated.has(*place)) return nullptr;
    const char* lowest = place + loop.minimum;
    if (!mark(loop, lowest)) return nullptr;
    const char* end = lowest;
    while (loop.repeated.has(*end) && mark(loop, end + 1))
        ++end;
    return tryRepetitions(index, loop.possessive ? end : lowest, end);
}

// Goes back from the end to the first place where what follows the loop may match; the places before stay to be tried.
const char* Machine::tryRepetitions(NodeIndex index, const char* lowest, const char* place) {
    const ByteSet& following = node(node(index).next).first;
    while (!following.has(*place)) {
        if (place == lowest) return nullptr;
        --place;
    }
    if (place != lowest && !push({offset(place) - 1, offset(lowest), index})) return nullptr;
    return place;
}

// Goes back to what was left to be tried last. False when nothing was.
bool Machine::resume(NodeIndex& next, const char*& place) {
    while (used_ > 0 && !stopped_) {
        const Frame frame = frames_[--used_];
        const PlanNode& left = node(frame.node);
        place = subject_ + frame.position;
        if (left.step == Step::Choice) {
            next = enterChoice(frame.node, place);
            if (next != kNone) return true;
        } else if (left.step == Step::Loop) {
            next = left.next;
            place = tryRepetitions(frame.node, subject_ + frame.lowest, place);
            if (place != nullptr) return true;
        }
    }
    return false;
}

bool Machine::push(const Frame& frame) {
    if (used_ == capacity_ && !grow()) return false;
    frames_[used_++] = frame;
    return true;
}

bool Machine::grow() {
    const std::size_t capacity = capacity_ * 2;
    std::unique_ptr<Frame[]> frames(capacity <= kFrameLimit ? new (std::nothrow) Frame[capacity] : nullptr);
    if (!frames) {
        stop(kOutOfSpace);
        return false;
    }
    std::copy_n(frames_, used_, frames.get());
    moreFrames_ = std::move(frames);
    frames_ = moreFrames_.get();
    capacity_ = capacity;
    return true;
}

// False when there is no point in trying the node at the place.
bool Machine::enter(const PlanNode& entered, const char* place) {
    if (memo_) return mark(entered, place);
    charge(1);
    return !stopped_;
}

// The memo is made when the budget is used up.
void Machine::charge(std::ptrdiff_t steps) {
    budget_ -= steps;
    if (budget_ >= 0 || stopped_) return;
    wordsPerRow_ = std::strlen(subject_) / 32 + 1;
    if (wordsPerRow_ <= kMemoLimit / sizeof(std::uint32_t) / plan_.memoRows)
        memo_.reset(static_cast<std::uint32_t*>(std::calloc(wordsPerRow_ * plan_.memoRows, sizeof(std::uint32_t))));
    if (!memo_) stop(kOutOfSpace);
}

// Notes the place in the node's row. False when it was noted before.
bool Machine::mark(const PlanNode& entered, const char* place) {
    const std::size_t position = offset(place);
    std::uint32_t& word = memo_[static_cast<std::size_t>(entered.memo) * wordsPerRow_ + position / 32];
    const std::uint32_t bit = 1u << (position % 32);
    const bool fresh = (word & bit) == 0;
    word |= bit;
    return fresh;
}

void Machine::stop(const char* message) {
    stopped_ = true;
    ReportRegExpError(message);
}

}  // namespace vexa::regexp

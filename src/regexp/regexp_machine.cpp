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

const char* Machine::match(NodeIndex index, const char* position) {
    used_ = 0;
    for (;;) {
        const PlanNode& current = node(index);
        if (current.memo != PlanNode::kNoMemo && current.step != Step::Loop && !enter(current, position)) {
            position = nullptr;
        } else {
            switch (current.step) {
                case Step::End:
                    return position;
                case Step::LineStart:
                    position = position == subject_ ? position : nullptr;
                    break;
                case Step::LineEnd:
                    position = *position == '\0' ? position : nullptr;
                    break;
                case Step::Set:
                    position = current.first.has(*position) ? position + 1 : nullptr;
                    break;
                case Step::Literal:
                    position = skipLiteral(current, position);
                    break;
                case Step::WordStart:
                    position = isWordStart(position) ? position : nullptr;
                    break;
                case Step::WordEnd:
                    position = kWordCharacters.has(*position) ? nullptr : position;
                    break;
                case Step::Save:
                    position = push({offset(position), 0, index}) ? position : nullptr;
                    break;
                case Step::Loop:
                    position = enterLoop(index, position);
                    break;
                case Step::Choice:
                    index = enterChoice(index, position);
                    if (index != kNone) continue;
                    position = nullptr;
                    break;
                case Step::Broken:
                    stop(current.text.data());
                    return nullptr;
            }
        }
        index = current.next;
        if (position == nullptr && !resume(index, position)) return nullptr;
    }
}

// The position that was kept last is the one that counts: the machine unwinds from the innermost.
Machine::Slots Machine::saved() const {
    Slots slots{};
    for (std::size_t i = used_; i-- > 0;) {
        const PlanNode& save = node(frames_[i].node);
        if (save.step == Step::Save && slots[save.slot] == nullptr) slots[save.slot] = subject_ + frames_[i].offset;
    }
    return slots;
}

const char* Machine::skipLiteral(const PlanNode& literal, const char* position) const {
    if (plan_.letterCase == LetterCase::Sensitive) {
        for (const char c : literal.text)
            if (*position++ != c) return nullptr;
    } else {
        for (const char c : literal.text)
            if (LowerAscii(*position++) != LowerAscii(c)) return nullptr;
    }
    return position;
}

bool Machine::isWordStart(const char* position) const {
    return kWordCharacters.has(*position) && (position == subject_ || !kWordCharacters.has(position[-1]));
}

// The first alternative, from this one on, that may match at the position.
NodeIndex Machine::viableChoice(NodeIndex choice, const char* position) const {
    while (!node(node(choice).operand).first.has(*position)) {
        if (node(choice).lastChoice) return kNone;
        choice = node(choice).next;
    }
    return choice;
}

NodeIndex Machine::enterChoice(NodeIndex choice, const char* position) {
    const NodeIndex viable = viableChoice(choice, position);
    if (viable == kNone) return kNone;
    if (!node(viable).lastChoice) {
        const NodeIndex other = viableChoice(node(viable).next, position);
        if (other != kNone && !push({offset(position), 0, other})) return kNone;
    }
    return node(viable).operand;
}

const char* Machine::enterLoop(NodeIndex index, const char* position) {
    const PlanNode& loop = node(index);
    if (loop.foulOperand) ReportRegExpError(kInternalFoulup);
    if (memo_) return rememberLoop(index, position);
    const char* end = position;
    while (loop.repeated.has(*end))
        ++end;
    charge(1 + (end - position) / kCharactersPerStep);
    if (end - position < loop.minimum) return nullptr;
    return tryRepetitions(index, loop.possessive ? end : position + loop.minimum, end);
}

// All loops that begin within a run of its characters have the same last end, so the ends that have been tried reach
// from any of them up to that one, and only those before them are new.
const char* Machine::rememberLoop(NodeIndex index, const char* position) {
    const PlanNode& loop = node(index);
    if (loop.minimum > 0 && !loop.repeated.has(*position)) return nullptr;
    const char* lowest = position + loop.minimum;
    if (!mark(loop, lowest)) return nullptr;
    const char* end = lowest;
    while (loop.repeated.has(*end) && mark(loop, end + 1))
        ++end;
    return tryRepetitions(index, loop.possessive ? end : lowest, end);
}

// Goes back from the end to the first position where what follows the loop may match; the positions before stay to be
// tried.
const char* Machine::tryRepetitions(NodeIndex index, const char* lowest, const char* position) {
    const ByteSet& following = node(node(index).next).first;
    while (!following.has(*position)) {
        if (position == lowest) return nullptr;
        --position;
    }
    if (position != lowest && !push({offset(position) - 1, offset(lowest), index})) return nullptr;
    return position;
}

// Goes back to what was left to be tried last. False when nothing was.
bool Machine::resume(NodeIndex& next, const char*& position) {
    while (used_ > 0 && !stopped_) {
        const Frame frame = frames_[--used_];
        const PlanNode& left = node(frame.node);
        position = subject_ + frame.offset;
        if (left.step == Step::Choice) {
            next = enterChoice(frame.node, position);
            if (next != kNone) return true;
        } else if (left.step == Step::Loop) {
            next = left.next;
            position = tryRepetitions(frame.node, subject_ + frame.lowest, position);
            if (position != nullptr) return true;
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

// False when there is no point in trying the node at the position.
bool Machine::enter(const PlanNode& entered, const char* position) {
    if (memo_) return mark(entered, position);
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

// Notes the position in the node's row. False when it was noted before.
bool Machine::mark(const PlanNode& entered, const char* position) {
    const std::size_t character = offset(position);
    std::uint32_t& word = memo_[static_cast<std::size_t>(entered.memo) * wordsPerRow_ + character / 32];
    const std::uint32_t bit = 1u << (character % 32);
    const bool fresh = (word & bit) == 0;
    word |= bit;
    return fresh;
}

void Machine::stop(const char* message) {
    stopped_ = true;
    ReportRegExpError(message);
}

}  // namespace vexa::regexp

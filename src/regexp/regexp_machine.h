// Runs a plan at one position of a subject after the other, by backtracking that cannot hang.
//
// Whether a match from a node at a position fails does not depend on how one got there. So when an execution has used
// up a small budget of steps, the machine begins to remember which nodes have been entered at which positions, and does
// not enter them again: either that has failed already, or it is still under way and nothing came in between. All tries
// of an execution together then take time in proportion to the nodes times the length of the subject. What is still to
// be tried stands on a stack of the machine's own, so depth is limited by memory alone.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "regexp/regexp_plan.h"

namespace vexa::regexp {

class Machine {
  public:
    // Positions kept by Save nodes, by slot; null for those that were not reached.
    using Slots = std::array<const char*, 20>;

    // The subject ends with a NUL.
    Machine(const Plan& plan, const char* subject);

    // The end of the match that begins at the position, starting from the node; null when there is none.
    const char* match(NodeIndex start, const char* position);
    // True when the machine met a damaged node or ran out of memory, which it has reported: nothing matches then.
    bool stopped() const { return stopped_; }
    // The positions kept on the way to the last match.
    Slots saved() const;

  private:
    // What to go back to: a Choice to go on with, repetitions of a Loop down to the lowest, or a kept position of a
    // Save.
    struct Frame {
        std::uint32_t offset;
        std::uint32_t lowest;
        NodeIndex node;
    };
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };

    static constexpr NodeIndex kNone = 0xFFFF;
    static constexpr int kCharactersPerStep = 16;
    static constexpr std::size_t kFirstFrames = 32;
    static constexpr std::size_t kFrameLimit = std::size_t{1} << 24;
    static constexpr std::size_t kMemoLimit = std::size_t{1} << 28;  // bytes

    const PlanNode& node(NodeIndex index) const { return plan_.nodes[index]; }
    std::uint32_t offset(const char* position) const { return static_cast<std::uint32_t>(position - subject_); }

    const char* skipLiteral(const PlanNode& literal, const char* position) const;
    bool isWordStart(const char* position) const;
    NodeIndex viableChoice(NodeIndex choice, const char* position) const;
    NodeIndex enterChoice(NodeIndex choice, const char* position);
    const char* enterLoop(NodeIndex index, const char* position);
    const char* rememberLoop(NodeIndex index, const char* position);
    const char* tryRepetitions(NodeIndex index, const char* lowest, const char* position);
    bool resume(NodeIndex& next, const char*& position);

    bool push(const Frame& frame);
    bool grow();
    bool enter(const PlanNode& node, const char* position);
    void charge(std::ptrdiff_t steps);
    bool mark(const PlanNode& node, const char* position);
    void stop(const char* message);

    const Plan& plan_;
    const char* subject_;
    bool stopped_ = false;
    std::ptrdiff_t budget_;  // steps left until the machine remembers

    std::size_t used_ = 0;
    std::size_t capacity_ = kFirstFrames;
    Frame* frames_ = firstFrames_;
    std::unique_ptr<Frame[]> moreFrames_;
    // A bit for every position in the subject and every node that has a row.
    std::unique_ptr<std::uint32_t[], Free> memo_;
    std::size_t wordsPerRow_ = 0;
    Frame firstFrames_[kFirstFrames];
};

}  // namespace vexa::regexp

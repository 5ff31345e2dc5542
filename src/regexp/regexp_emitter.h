// Writes the bytes of a program and links its nodes. Only counts the bytes until it is given room for them.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "regexp/regexp_program.h"

namespace vexa::regexp {

class Emitter {
  public:
    int size() const { return size_; }

    // Everything counted so far is now to be emitted. Throws std::bad_alloc.
    void allocate();
    std::vector<std::uint8_t> take() { return std::move(program_); }

    // Appends a node without a next node; returns its offset.
    int node(int opcode);
    void byte(int value);
    void range(int first, int last);
    // Puts a node in front of the last piece emitted. Nothing leads into that yet, and distances inside it stay true.
    void insert(int opcode, int piece);
    // Makes target the next node of the last node in the chain.
    void linkTail(int chain, int target);
    // The same for the chain that is a BRANCH's operand.
    void linkOperandTail(int branch, int target) { linkTail(branch + kNodeHeader, target); }
    // Makes target the end of the operands of all BRANCH nodes in the chain.
    void linkBranches(int chain, int target);

  private:
    bool emitting() const { return !program_.empty(); }
    std::uint8_t& at(int offset) { return program_[static_cast<std::size_t>(offset)]; }
    // The node after this one, or this one when it is the last of its chain.
    int nextOf(int node);

    int size_ = 0;
    std::vector<std::uint8_t> program_;
};

}  // namespace vexa::regexp

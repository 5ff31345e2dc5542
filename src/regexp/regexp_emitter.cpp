#include "regexp/regexp_emitter.h"

#include <algorithm>
#include <numeric>

namespace vexa::regexp {

void Emitter::allocate() {
    program_.resize(static_cast<std::size_t>(size_));
    size_ = 0;
}

int Emitter::node(int opcode) {
    const int offset = size_;
    byte(opcode);
    byte(0);
    byte(0);
    return offset;
}

void Emitter::byte(int value) {
    if (emitting()) at(size_) = static_cast<std::uint8_t>(value);
    ++size_;
}

void Emitter::range(int first, int last) {
    if (emitting()) std::iota(&at(size_), &at(size_) + (last - first + 1), static_cast<std::uint8_t>(first));
    size_ += last - first + 1;
}

void Emitter::insert(int opcode, int piece) {
    if (emitting()) {
        const auto from = program_.begin() + piece;
        std::copy_backward(from, program_.begin() + size_, program_.begin() + size_ + kNodeHeader);
        std::fill_n(from, kNodeHeader, std::uint8_t{0});
        at(piece) = static_cast<std::uint8_t>(opcode);
    }
    size_ += kNodeHeader;
}

int Emitter::nextOf(int node) {
    const int distance = at(node + 1) << 8 | at(node + 2);
    return at(node) == BACK ? node - distance : node + distance;
}

void Emitter::linkTail(int chain, int target) {
    if (!emitting()) return;
    int last = chain;
    for (int next = nextOf(last); next != last; next = nextOf(last))
        last = next;
    const int distance = at(last) == BACK ? last - target : target - last;
    at(last + 1) = static_cast<std::uint8_t>(distance >> 8);
    at(last + 2) = static_cast<std::uint8_t>(distance & 0xFF);
}

void Emitter::linkBranches(int chain, int target) {
    if (!emitting()) return;
    for (int node = chain; node != target; node = nextOf(node)) {
        if (at(node) == BRANCH) linkOperandTail(node, target);
    }
}

}  // namespace vexa::regexp

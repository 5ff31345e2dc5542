// A number that tells contents apart: equal contents have equal numbers, other contents another number but for chance.
// Not for defence against somebody who makes contents on purpose.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/instructions.h"

namespace vexa {

// Contents may be added in pieces of any sizes. Fast, as every byte of a loaded file goes through here: a row of lanes
// is mixed at a time, with products of 32 bits, which the oldest vector instructions have and a 32-bit processor, too.
class Checksum {
  public:
    // The instructions make no difference to the number.
    explicit Checksum(Instructions most = Instructions::Sse2);

    void add(std::string_view bytes);
    std::uint64_t value() const;

  private:
    using Lanes = std::array<std::uint64_t, 8>;
    static constexpr std::size_t kRow = sizeof(Lanes);

    void addRows(const char* rows, std::size_t count);

    std::uint64_t size_ = 0;
    Lanes lanes_;
    std::array<char, kRow> rest_;  // the size_ % kRow bytes that do not fill a row yet
    Instructions instructions_;
};

std::uint64_t ChecksumOf(std::string_view bytes);

}  // namespace vexa

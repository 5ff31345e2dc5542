// A number that tells contents apart: equal contents have equal numbers, other contents another number but for chance.
// Not for defence against somebody who makes contents on purpose.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vexa {

// Contents may be added in pieces of any sizes. Fast, as every byte of a loaded file goes through here: two lanes of
// 32 bits, which a 32-bit processor multiplies at once.
class Checksum {
  public:
    void add(std::string_view bytes);
    std::uint64_t value() const;

  private:
    void addWord(const char* bytes);

    std::uint32_t a_ = 0x9E3779B9;
    std::uint32_t b_ = 0x85EBCA6B;
    std::uint64_t size_ = 0;
    char rest_[8] = {};  // the size_ % 8 bytes that do not fill a word yet
};

std::uint64_t ChecksumOf(std::string_view bytes);

}  // namespace vexa

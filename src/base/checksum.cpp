#include "base/checksum.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace vexa {

namespace {

constexpr std::size_t kWord = 8;

std::uint32_t Mixed(std::uint32_t lane, std::uint32_t word, std::uint32_t factor) {
    return std::rotl(lane ^ (word * factor), 13) * 5 + 0xE6546B64;
}

}  // namespace

void Checksum::addWord(const char* bytes) {
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    std::memcpy(&low, bytes, sizeof low);
    std::memcpy(&high, bytes + sizeof low, sizeof high);
    a_ = Mixed(a_, low, 0xCC9E2D51);
    b_ = Mixed(b_, high, 0x1B873593);
}

void Checksum::add(std::string_view bytes) {
    std::size_t used = size_ % kWord;
    size_ += bytes.size();
    if (used > 0) {
        const std::size_t taken = std::min(kWord - used, bytes.size());
        std::memcpy(rest_ + used, bytes.data(), taken);
        bytes.remove_prefix(taken);
        if (used + taken < kWord) return;
        addWord(rest_);
    }
    for (; bytes.size() >= kWord; bytes.remove_prefix(kWord))
        addWord(bytes.data());
    if (!bytes.empty()) std::memcpy(rest_, bytes.data(), bytes.size());
}

std::uint64_t Checksum::value() const {
    Checksum whole = *this;
    std::fill(whole.rest_ + size_ % kWord, whole.rest_ + kWord, '\0');
    whole.addWord(whole.rest_);
    const auto high = Mixed(whole.a_, static_cast<std::uint32_t>(size_), 0xCC9E2D51);
    const auto low = Mixed(whole.b_, static_cast<std::uint32_t>(size_ >> 32) + high, 0x1B873593);
    return std::uint64_t{high} << 32 | low;
}

std::uint64_t ChecksumOf(std::string_view bytes) {
    Checksum sum;
    sum.add(bytes);
    return sum.value();
}

}  // namespace vexa

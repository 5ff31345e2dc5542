#include "base/checksum.h"

#include <algorithm>
#include <cstring>

#ifdef VEXA_SSE2_TARGET
#include <emmintrin.h>
#endif

namespace vexa {

namespace {

// Primes of 32 bits, so that a change of one half of a lane always shows, and in bits all over the lane: what the same
// lane takes from the next row would have to change in all of those to make up for it.
constexpr std::uint32_t kLowFactor = 0x9E3779B1;
constexpr std::uint32_t kHighFactor = 0x85EBCA77;

[[gnu::noinline]] std::uint64_t Mixed(std::uint64_t lane) {
    return (lane & 0xFFFFFFFF) * kLowFactor + (lane >> 32) * kHighFactor;
}

#ifdef VEXA_SSE2_TARGET
// The same of two lanes that take the bytes.
[[gnu::always_inline]] VEXA_SSE2_TARGET inline __m128i MixedWith(const char* bytes, __m128i lanes) {
    lanes = _mm_xor_si128(lanes, _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)));
    return _mm_add_epi64(_mm_mul_epu32(lanes, _mm_set1_epi32(static_cast<int>(kLowFactor))),
                         _mm_mul_epu32(_mm_srli_epi64(lanes, 32), _mm_set1_epi32(static_cast<int>(kHighFactor))));
}

// Eight lanes, of 64 bytes in all.
VEXA_SSE2_ENTRY void MixSse2(const char* rows, std::size_t count, std::uint64_t* lanes) {
    auto* const pairs = reinterpret_cast<__m128i*>(lanes);
    __m128i a = _mm_loadu_si128(pairs);
    __m128i b = _mm_loadu_si128(pairs + 1);
    __m128i c = _mm_loadu_si128(pairs + 2);
    __m128i d = _mm_loadu_si128(pairs + 3);
    for (; count > 0; --count, rows += 64) {
        a = MixedWith(rows, a);
        b = MixedWith(rows + 16, b);
        c = MixedWith(rows + 32, c);
        d = MixedWith(rows + 48, d);
    }
    _mm_storeu_si128(pairs, a);
    _mm_storeu_si128(pairs + 1, b);
    _mm_storeu_si128(pairs + 2, c);
    _mm_storeu_si128(pairs + 3, d);
}
#endif

}  // namespace

Checksum::Checksum(Instructions most) : instructions_(AvailableOf(most)) {
    std::uint64_t seed = 0;
    for (std::uint64_t& lane : lanes_)
        lane = seed += 0x9E3779B97F4A7C15;
}

void Checksum::addRows(const char* rows, std::size_t count) {
#ifdef VEXA_SSE2_TARGET
    if (instructions_ != Instructions::Plain) {
        MixSse2(rows, count, lanes_.data());
        return;
    }
#endif
    for (; count > 0; --count) {
        for (std::uint64_t& lane : lanes_) {
            std::uint64_t taken = 0;
            std::memcpy(&taken, rows, sizeof taken);
            lane = Mixed(lane ^ taken);
            rows += sizeof taken;
        }
    }
}

void Checksum::add(std::string_view bytes) {
    const std::size_t used = size_ % kRow;
    size_ += bytes.size();
    if (used > 0) {
        const std::size_t taken = std::min(kRow - used, bytes.size());
        std::memcpy(&rest_[used], bytes.data(), taken);
        bytes.remove_prefix(taken);
        if (used + taken < kRow) return;
        addRows(rest_.data(), 1);
    }
    addRows(bytes.data(), bytes.size() / kRow);
    bytes.remove_prefix(bytes.size() / kRow * kRow);
    if (!bytes.empty()) std::memcpy(rest_.data(), bytes.data(), bytes.size());
}

std::uint64_t Checksum::value() const {
    Checksum whole = *this;
    const std::size_t used = size_ % kRow;
    std::memset(&whole.rest_[used], 0, kRow - used);
    whole.addRows(whole.rest_.data(), 1);
    std::uint64_t sum = size_;
    for (const std::uint64_t lane : whole.lanes_)
        sum = Mixed(sum ^ lane);
    return sum;
}

std::uint64_t ChecksumOf(std::string_view bytes) {
    Checksum sum;
    sum.add(bytes);
    return sum.value();
}

}  // namespace vexa

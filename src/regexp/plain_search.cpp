#include "regexp/plain_search.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "base/ascii.h"

#ifdef VEXA_SSE2_TARGET
#include <emmintrin.h>
#endif

namespace vexa {

namespace {

constexpr char kCaseBit = 'a' ^ 'A';

char FoldOf(char folded, LetterCase letterCase) {
    return letterCase == LetterCase::Ignored && folded >= 'a' && folded <= 'z' ? kCaseBit : '\0';
}

}  // namespace

PlainSearch::PlainSearch(std::string_view literal, LetterCase letterCase, Instructions most)
    : literal_(literal), letterCase_(letterCase), instructions_(AvailableOf(most)) {
    if (literal.empty()) return;
    if (letterCase == LetterCase::Ignored) std::ranges::transform(literal_, literal_.begin(), LowerAscii);
    first_.fill(literal_.front());
    last_.fill(literal_.back());
    firstFold_.fill(FoldOf(literal_.front(), letterCase));
    lastFold_.fill(FoldOf(literal_.back(), letterCase));
}

const char* PlainSearch::find(std::string_view text) const {
    if (text.size() < literal_.size()) return nullptr;
    if (literal_.empty()) return text.data();
    const std::size_t count = text.size() - literal_.size() + 1;
    constexpr std::size_t kFewPositions = 4;
    if (instructions_ == Instructions::Plain || count < kFewPositions) return findPlain(text.data(), count);
    return findSse2(text.data(), count);
}

// Whether the bytes between the first and the last are those of the literal, given that those two are.
bool PlainSearch::equalsAt(const char* position) const {
    const std::size_t size = literal_.size();
    const char* literal = literal_.data();
    if (letterCase_ == LetterCase::Sensitive) {
        for (std::size_t i = 1; i + 1 < size; ++i)
            if (position[i] != literal[i]) return false;
    } else {
        for (std::size_t i = 1; i + 1 < size; ++i)
            if (LowerAscii(position[i]) != literal[i]) return false;
    }
    return true;
}

const char* PlainSearch::findPlain(const char* position, std::size_t count) const {
    const std::size_t last = literal_.size() - 1;
    for (const char* end = position + count; position != end; ++position) {
        if ((*position | firstFold_[0]) == first_[0] && (position[last] | lastFold_[0]) == last_[0] &&
            equalsAt(position))
            return position;
    }
    return nullptr;
}

#ifdef VEXA_SSE2_TARGET

// Compares the first and the last byte of the literal with those of 16 positions at a time, and looks at the rest only
// where both are the same.
class PlainSearch::Sse2 {
  public:
    VEXA_SSE2_TARGET explicit Sse2(const PlainSearch& search)
        : search_(search),
          distance_(search.literal_.size() - 1),
          first_(load<16>(search.first_.data())),
          last_(load<16>(search.last_.data())),
          firstFold_(load<16>(search.firstFold_.data())),
          lastFold_(load<16>(search.lastFold_.data())) {}

    VEXA_SSE2_TARGET const char* find(const char* text, std::size_t count) const {
        if (count >= 16) return findInBlocks(text, text + count);
        if (count >= 8) return findInHalves<8>(text, text + count);
        return findInHalves<4>(text, text + count);
    }

  private:
    VEXA_SSE2_TARGET const char* findInBlocks(const char* position, const char* end) const {
        for (; end - position >= 32; position += 32) {
            const unsigned found = candidates(load<16>(position), load<16>(position + distance_)) |
                                   candidates(load<16>(position + 16), load<16>(position + 16 + distance_)) << 16;
            if (found == 0) continue;
            if (const char* match = firstMatch(position, found)) return match;
        }
        if (end - position >= 16) {
            if (const char* match = findInBlock(position)) return match;
            position += 16;
        }
        // The last block overlaps the one before it.
        return position == end ? nullptr : findInBlock(end - 16);
    }

    VEXA_SSE2_TARGET const char* findInBlock(const char* position) const {
        const unsigned found = candidates(load<16>(position), load<16>(position + distance_));
        return found == 0 ? nullptr : firstMatch(position, found);
    }

    // For Half to 2 * Half positions: the first and the last Half of them, which may overlap.
    template <int Half>
    VEXA_SSE2_TARGET const char* findInHalves(const char* position, const char* end) const {
        const char* second = end - Half;
        const unsigned found =
            candidates(join<Half>(position, second), join<Half>(position + distance_, second + distance_));
        constexpr unsigned kHalfMask = (1u << Half) - 1;
        if (const char* match = firstMatch(position, found & kHalfMask)) return match;
        return firstMatch(second, found >> Half & kHalfMask);
    }

    const char* firstMatch(const char* position, unsigned found) const {
        for (; found != 0; found &= found - 1) {
            const char* candidate = position + std::countr_zero(found);
            if (search_.equalsAt(candidate)) return candidate;
        }
        return nullptr;
    }

    // A bit for every position whose first and last byte are the literal's.
    VEXA_SSE2_TARGET unsigned candidates(__m128i first, __m128i last) const {
        const __m128i same = _mm_and_si128(_mm_cmpeq_epi8(_mm_or_si128(first, firstFold_), first_),
                                           _mm_cmpeq_epi8(_mm_or_si128(last, lastFold_), last_));
        return static_cast<unsigned>(_mm_movemask_epi8(same));
    }

    template <int Size>
    VEXA_SSE2_TARGET static __m128i load(const char* position) {
        if constexpr (Size == 16) return _mm_loadu_si128(reinterpret_cast<const __m128i*>(position));
        if constexpr (Size == 8) return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(position));
        int bytes;
        std::memcpy(&bytes, position, sizeof bytes);
        return _mm_cvtsi32_si128(bytes);
    }

    template <int Half>
    VEXA_SSE2_TARGET static __m128i join(const char* first, const char* second) {
        return _mm_or_si128(load<Half>(first), _mm_slli_si128(load<Half>(second), Half));
    }

    const PlainSearch& search_;
    std::size_t distance_;
    __m128i first_, last_, firstFold_, lastFold_;
};

VEXA_SSE2_ENTRY const char* PlainSearch::findSse2(const char* text, std::size_t count) const {
    return Sse2(*this).find(text, count);
}

#else

const char* PlainSearch::findSse2(const char* text, std::size_t count) const {
    return findPlain(text, count);
}

#endif

}  // namespace vexa

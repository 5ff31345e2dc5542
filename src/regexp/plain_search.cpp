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
    const std::size_t places = text.size() - literal_.size() + 1;
    constexpr std::size_t kFewPlaces = 4;
    if (instructions_ == Instructions::Plain || places < kFewPlaces) return findPlain(text.data(), places);
    return findSse2(text.data(), places);
}

// Whether the bytes between the first and the last are those of the literal, given that those two are.
bool PlainSearch::equalsAt(const char* place) const {
    const std::size_t size = literal_.size();
    const char* literal = literal_.data();
    if (letterCase_ == LetterCase::Sensitive) {
        for (std::size_t i = 1; i + 1 < size; ++i)
            if (place[i] != literal[i]) return false;
    } else {
        for (std::size_t i = 1; i + 1 < size; ++i)
            if (LowerAscii(place[i]) != literal[i]) return false;
    }
    return true;
}

const char* PlainSearch::findPlain(const char* place, std::size_t places) const {
    const std::size_t last = literal_.size() - 1;
    for (const char* end = place + places; place != end; ++place) {
        if ((*place | firstFold_[0]) == first_[0] && (place[last] | lastFold_[0]) == last_[0] && equalsAt(place))
            return place;
    }
    return nullptr;
}

#ifdef VEXA_SSE2_TARGET

// Compares the first and the last byte of the literal with those of 16 places at a time, and looks at the rest only
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

    VEXA_SSE2_TARGET const char* find(const char* text, std::size_t places) const {
        if (places >= 16) return findInBlocks(text, text + places);
        if (places >= 8) return findInHalves<8>(text, text + places);
        return findInHalves<4>(text, text + places);
    }

  private:
    VEXA_SSE2_TARGET const char* findInBlocks(const char* place, const char* end) const {
        for (; end - place >= 32; place += 32) {
            const unsigned found = candidates(load<16>(place), load<16>(place + distance_)) |
                                   candidates(load<16>(place + 16), load<16>(place + 16 + distance_)) << 16;
            if (found == 0) continue;
            if (const char* match = firstMatch(place, found)) return match;
        }
        if (end - place >= 16) {
            if (const char* match = findInBlock(place)) return match;
            place += 16;
        }
        // The last block overlaps the one before it.
        return place == end ? nullptr : findInBlock(end - 16);
    }

    VEXA_SSE2_TARGET const char* findInBlock(const char* place) const {
        const unsigned found = candidates(load<16>(place), load<16>(place + distance_));
        return found == 0 ? nullptr : firstMatch(place, found);
    }

    // For Half to 2 * Half places: the first and the last Half of them, which may overlap.
    template <int Half>
    VEXA_SSE2_TARGET const char* findInHalves(const char* place, const char* end) const {
        const char* second = end - Half;
        const unsigned found = candidates(join<Half>(place, second), join<Half>(place + distance_, second + distance_));
        constexpr unsigned kHalfMask = (1u << Half) - 1;
        if (const char* match = firstMatch(place, found & kHalfMask)) return match;
        return firstMatch(second, found >> Half & kHalfMask);
    }

    const char* firstMatch(const char* place, unsigned found) const {
        for (; found != 0; found &= found - 1) {
            const char* candidate = place + std::countr_zero(found);
            if (search_.equalsAt(candidate)) return candidate;
        }
        return nullptr;
    }

    // A bit for every place whose first and last byte are the literal's.
    VEXA_SSE2_TARGET unsigned candidates(__m128i first, __m128i last) const {
        const __m128i same = _mm_and_si128(_mm_cmpeq_epi8(_mm_or_si128(first, firstFold_), first_),
                                           _mm_cmpeq_epi8(_mm_or_si128(last, lastFold_), last_));
        return static_cast<unsigned>(_mm_movemask_epi8(same));
    }

    template <int Size>
    VEXA_SSE2_TARGET static __m128i load(const char* place) {
        if constexpr (Size == 16) return _mm_loadu_si128(reinterpret_cast<const __m128i*>(place));
        if constexpr (Size == 8) return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(place));
        int bytes;
        std::memcpy(&bytes, place, sizeof bytes);
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

VEXA_SSE2_ENTRY const char* PlainSearch::findSse2(const char* text, std::size_t places) const {
    return Sse2(*this).find(text, places);
}

#else

const char* PlainSearch::findSse2(const char* text, std::size_t places) const {
    return findPlain(text, places);
}

#endif

}  // namespace vexa

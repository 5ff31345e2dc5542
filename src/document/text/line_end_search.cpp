#include "document/text/line_end_search.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#ifdef VEXA_SSE2_TARGET
#include <emmintrin.h>
#endif

namespace vexa {

namespace {

using Sought = LineEndSearch::Sought;

template <Sought kSought>
std::size_t FindPlain(std::string_view text) {
    const auto isSought = [](char byte) { return byte == '\n' || (kSought == Sought::LfAndCr && byte == '\r'); };
    return static_cast<std::size_t>(std::ranges::find_if(text, isSought) - text.begin());
}

#ifdef VEXA_SSE2_TARGET

// A bit for each of 16 bytes that is sought.
template <Sought kSought>
VEXA_SSE2_TARGET inline std::uint32_t BitsOf(const char* bytes) {
    const __m128i loaded = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    __m128i equal = _mm_cmpeq_epi8(loaded, _mm_set1_epi8('\n'));
    if constexpr (kSought == Sought::LfAndCr) equal = _mm_or_si128(equal, _mm_cmpeq_epi8(loaded, _mm_set1_epi8('\r')));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(equal));
}

// Most lines end among the first 64 bytes. Taken together, these leave no branch to be guessed wrong at each line.
template <Sought kSought>
VEXA_SSE2_ENTRY std::size_t FindSse2(std::string_view text) {
    constexpr std::size_t kBlock = 64;
    if (text.size() < kBlock) return FindPlain<kSought>(text);
    for (std::size_t from = 0; from < text.size(); from += kBlock) {
        from = std::min(from, text.size() - kBlock);  // the last block overlaps the one before it
        const char* const bytes = text.data() + from;
        const std::uint32_t low = BitsOf<kSought>(bytes) | BitsOf<kSought>(bytes + 16) << 16;
        const std::uint32_t high = BitsOf<kSought>(bytes + 32) | BitsOf<kSought>(bytes + 48) << 16;
        const std::uint64_t found = low | std::uint64_t{high} << 32;
        if (found != 0) return from + static_cast<std::size_t>(std::countr_zero(found));
    }
    return text.size();
}

#else

template <Sought kSought>
std::size_t FindSse2(std::string_view text) {
    return FindPlain<kSought>(text);
}

#endif

template <Sought kSought>
auto FunctionFor(Instructions instructions) {
    return instructions == Instructions::Plain ? &FindPlain<kSought> : &FindSse2<kSought>;
}

}  // namespace

LineEndSearch::LineEndSearch(Sought sought, Instructions most)
    : find_(sought == Sought::Lf ? FunctionFor<Sought::Lf>(AvailableOf(most))
                                 : FunctionFor<Sought::LfAndCr>(AvailableOf(most))) {}

}  // namespace vexa

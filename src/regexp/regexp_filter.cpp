#include "regexp/regexp_filter.h"

#include <algorithm>
#include <bit>

#if defined(__x86_64__) || defined(__i386__)
#define VEXA_SSSE3 1
#define VEXA_SSSE3_TARGET __attribute__((target("ssse3")))
#ifdef __i386__
// A function of 32-bit Windows may be entered with a stack that is not aligned for vectors.
#define VEXA_SSSE3_ENTRY __attribute__((target("ssse3"), force_align_arg_pointer))
#else
#define VEXA_SSSE3_ENTRY VEXA_SSSE3_TARGET
#endif
#include <tmmintrin.h>
#endif

namespace vexa::regexp {

namespace {

// With one alternative, a bit stands for each of the eight rows of sixteen ASCII characters, so the halves hold the
// very set; the other characters are in it if one of them is.
void AddRow(unsigned row, const ByteTable& table, std::array<Byte, 16>& low, std::array<Byte, 16>& high) {
    for (unsigned column = 0; column < 16; ++column) {
        if (table[row * 16 + column] == 0) continue;
        const Byte bits = row < 8 ? static_cast<Byte>(1u << row) : Byte{0xFF};
        low[column] |= bits;
        high[row] |= bits;
    }
}

void AddAlternatives(unsigned row, const ByteTable& table, std::array<Byte, 16>& low, std::array<Byte, 16>& high) {
    for (unsigned column = 0; column < 16; ++column) {
        low[column] |= table[row * 16 + column];
        high[row] |= table[row * 16 + column];
    }
}

}  // namespace

PositionFilter::PositionFilter(const std::vector<Alternative>& alternatives, Instructions most)
    : mode_(alternatives.size() == 1 ? Mode::OneAlternative : Mode::SeveralAlternatives),
      instructions_(AvailableOf(most)) {
    const auto addRow = mode_ == Mode::OneAlternative ? AddRow : AddAlternatives;
    for (std::size_t offset = 0; offset < kOffsets; ++offset) {
        for (std::size_t i = 0; i < alternatives.size(); ++i)
            alternatives[i][offset].mark(tables_[offset], static_cast<Byte>(1u << i));
        for (unsigned row = 0; row < 16; ++row)
            addRow(row, tables_[offset], halves_[offset].low, halves_[offset].high);
    }
}

const char* PositionFilter::find(const char* position, const char* end) const {
    if (mode_ == Mode::Off) return position;
    return instructions_ == Instructions::Ssse3 ? findSsse3(position, end) : findPlain(position, end);
}

// Looks at three characters of each position, and at fewer at the end.
const char* PositionFilter::findPlain(const char* position, const char* end) const {
    const auto at = [](const ByteTable& table, const char* c) { return table[static_cast<Byte>(*c)]; };
    Byte first = at(tables_[0], position);
    for (; position + 1 < end; ++position) {
        const Byte both = first & at(tables_[1], position + 1);
        if (both != 0 && (both & at(tables_[2], position + 2)) != 0) return position;
        first = at(tables_[0], position + 1);
    }
    for (; position < end; ++position)
        if ((at(tables_[0], position) & at(tables_[1], position + 1)) != 0) return position;
    return at(tables_[0], end) != 0 ? end : nullptr;
}

#ifdef VEXA_SSSE3

// Sixteen positions at a time.
class PositionFilter::Ssse3 {
  public:
    VEXA_SSSE3_TARGET explicit Ssse3(const PositionFilter& filter)
        : several_(filter.mode_ == Mode::SeveralAlternatives) {
        for (std::size_t i = 0; i < kOffsets; ++i) {
            low_[i] = _mm_load_si128(reinterpret_cast<const __m128i*>(filter.halves_[i].low.data()));
            high_[i] = _mm_load_si128(reinterpret_cast<const __m128i*>(filter.halves_[i].high.data()));
        }
    }

    // The positions of the sixteen from this one on that pass, as bits. Eighteen characters are read.
    VEXA_SSSE3_TARGET unsigned passing(const char* position) const {
        const __m128i none = _mm_setzero_si128();
        const __m128i first = found(0, position), second = found(1, position + 1), third = found(2, position + 2);
        const __m128i failed =
            several_ ? _mm_cmpeq_epi8(_mm_and_si128(_mm_and_si128(first, second), third), none)
                     : _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(first, none), _mm_cmpeq_epi8(second, none)),
                                    _mm_cmpeq_epi8(third, none));
        return static_cast<unsigned>(_mm_movemask_epi8(failed)) ^ 0xFFFFu;
    }

  private:
    VEXA_SSSE3_TARGET __m128i found(std::size_t offset, const char* position) const {
        const __m128i text = _mm_loadu_si128(reinterpret_cast<const __m128i*>(position));
        const __m128i nibble = _mm_set1_epi8(0x0F);
        return _mm_and_si128(_mm_shuffle_epi8(low_[offset], _mm_and_si128(text, nibble)),
                             _mm_shuffle_epi8(high_[offset], _mm_and_si128(_mm_srli_epi16(text, 4), nibble)));
    }

    bool several_;
    __m128i low_[kOffsets];
    __m128i high_[kOffsets];
};

VEXA_SSSE3_ENTRY const char* PositionFilter::findSsse3(const char* position, const char* end) const {
    constexpr std::ptrdiff_t kRead = 18;
    const Ssse3 vectors(*this);
    if (end + 1 - position < kRead) return findPlain(position, end);
    const char* last = end + 1 - kRead;
    for (;; position = std::min(position + 16, last)) {
        const unsigned passing = vectors.passing(position);
        if (passing != 0) return position + std::countr_zero(passing);
        // The last sixteen overlap those before.
        if (position == last) return findPlain(end - 1, end);
    }
}

#else

const char* PositionFilter::findSsse3(const char* position, const char* end) const {
    return findPlain(position, end);
}

#endif

}  // namespace vexa::regexp

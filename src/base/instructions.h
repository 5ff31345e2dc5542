// Which of the newer instructions the processor has, for code that is compiled for them beside plain code.
#pragma once

#include <cstdint>

// Marks what is compiled for SSE2: an inline function, and one that others call. A 32-bit Windows function may be
// entered with a stack that is not aligned for vectors. Not defined where no processor of the family has SSE2.
#if defined(__x86_64__)
#define VEXA_SSE2_TARGET
#define VEXA_SSE2_ENTRY
#elif defined(__i386__)
#define VEXA_SSE2_TARGET __attribute__((target("sse2")))
#define VEXA_SSE2_ENTRY __attribute__((target("sse2"), force_align_arg_pointer))
#endif

namespace vexa {

// Each set with those before it.
enum class Instructions : std::uint8_t { Plain, Sse2, Ssse3 };

// Those that the processor has, but no more than the given ones.
Instructions AvailableOf(Instructions most);

}  // namespace vexa

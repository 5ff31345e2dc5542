#include "base/instructions.h"

#include <algorithm>

#ifdef VEXA_SSE2_TARGET
#include <cpuid.h>
#endif

namespace vexa {

namespace {

#ifdef VEXA_SSE2_TARGET
// Asks the processor itself: what the compiler has for it knows every processor by name, in 6 KB.
Instructions DetectInstructions() {
    constexpr unsigned kFeatures = 1;
    unsigned signature = 0;
    unsigned brand = 0;
    unsigned newer = 0;
    unsigned older = 0;
    if (__get_cpuid(kFeatures, &signature, &brand, &newer, &older) == 0) return Instructions::Plain;
    if ((newer & bit_SSSE3) != 0) return Instructions::Ssse3;
    return (older & bit_SSE2) != 0 ? Instructions::Sse2 : Instructions::Plain;
}
#else
Instructions DetectInstructions() {
    return Instructions::Plain;
}
#endif

// Found before any thread begins.
const Instructions g_available = DetectInstructions();

}  // namespace

Instructions AvailableOf(Instructions most) {
    return std::min(g_available, most);
}

}  // namespace vexa

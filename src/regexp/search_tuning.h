// How a search goes about its work. All ways give the same results: the editor takes the default, tests compare them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vexa {

// The processor's instructions that a search uses, each set with those before it.
enum class Instructions : std::uint8_t { Plain, Sse2, Ssse3 };

struct SearchTuning {
    Instructions most = Instructions::Ssse3;  // used where the processor has them
    std::ptrdiff_t stepsBeforeMemo = 1024;    // that an execution takes before the machine begins to remember
};

}  // namespace vexa

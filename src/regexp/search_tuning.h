// How a search goes about its work. All ways give the same results: the editor takes the default, tests compare them.
#pragma once

#include <cstddef>

#include "base/instructions.h"

namespace vexa {

struct SearchTuning {
    Instructions most = Instructions::Ssse3;  // used where the processor has them
    std::ptrdiff_t stepsBeforeMemo = 1024;    // that an execution takes before the machine begins to remember
};

}  // namespace vexa

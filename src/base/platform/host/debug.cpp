#include <cstdio>

#include "base/platform.h"

namespace vexa::platform {

void DebugOutput(std::string_view text) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
}

}  // namespace vexa::platform

// Whatever bytes a file holds, it loads and can be written.
#include <cstdint>
#include <string>

#include "fuzz/loaded_text.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    RequireLoads(std::string(data + 1, data + size), data[0] % 2 != 0);
    return 0;
}

}  // namespace vexa::fuzz

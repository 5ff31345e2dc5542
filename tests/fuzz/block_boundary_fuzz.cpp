// Whatever bytes stand where one block of a file ends and the next begins, it loads and can be written.
#include <cstdint>
#include <string>

#include "fuzz/loaded_text.h"

namespace vexa::fuzz {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;

// Short lines, so that the text has fewer than a load keeps.
std::string Lines(std::size_t size) {
    std::string text;
    while (text.size() < size)
        text.append(99, 'x').append(1, '\n');
    text.resize(size);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::uint8_t how = input.byte();
    const std::size_t before = (how >> 1) * 4u + input.byte() % 4;  // bytes that stand before the boundary
    const std::string text = input.rest().substr(0, 2000);
    static const std::string lines = Lines(kBlock);
    const std::size_t repeated = how & 0x80 ? text.size() : 0;  // and again at the next boundary
    std::string bytes = lines.substr(0, kBlock - before) + text;
    if (repeated > 0) bytes += lines.substr(0, kBlock - repeated) + text;
    RequireLoads(bytes, how % 2 != 0);
    return 0;
}

}  // namespace vexa::fuzz

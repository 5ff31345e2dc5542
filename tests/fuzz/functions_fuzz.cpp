// Whatever a text holds, the functions found in it lie in it, in the order of the lines.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/fuzzing.h"
#include "language/c_functions.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    std::string_view rest = bytes;
    std::vector<std::string_view> lines;
    CFunctionScanner scanner;
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find('\n'), rest.size());
        lines.push_back(rest.substr(0, length));
        scanner.addLine(lines.back());
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    std::int32_t before = 0;
    for (const FunctionPosition& position : scanner.found()) {
        Require(position.line >= before && static_cast<std::size_t>(position.line) < lines.size());
        Require(position.begin < position.end && position.end <= lines[static_cast<std::size_t>(position.line)].size());
        before = position.line;
    }
    return 0;
}

}  // namespace vexa::fuzz

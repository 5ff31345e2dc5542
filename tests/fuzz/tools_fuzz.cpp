// Any bytes give tools within their limits, which come back from their file as they were.
#include <cstdint>
#include <string>

#include "external/tool_list.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const Tools tools = DecodeTools(bytes);
    Require(tools.size() <= kMostTools);
    for (const ProgramRequest& tool : tools) {
        Require(tool.menuText().size() <= ProgramRequest::kMenuTextLimit);
        for (const std::string& text : {tool.program(), tool.arguments(), tool.directory()})
            Require(text.size() <= ProgramRequest::kTextLimit);
    }
    Require(DecodeTools(EncodeTools(tools)) == tools);
    return 0;
}

}  // namespace vexa::fuzz

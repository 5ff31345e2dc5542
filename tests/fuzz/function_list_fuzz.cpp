// Whatever a document holds and whatever its language: the list of its functions is in the order of the lines, and each
// has a name.
#include <cstdint>
#include <string>

#include "fuzz/fuzzing.h"
#include "search/function_list.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    SilentNotices notices;
    EditorOptions options;
    TextDocument document(options, notices);
    static const char* const kNames[] = {"A.C", "A.PY", "A.PAS", "A.BAS", "A.PL", "A.ASM", "A", "A.P Y"};
    document.setName(kNames[input.byte() % std::size(kNames)]);
    Fill(document, input.rest());
    LineIndex before;
    for (const FunctionEntry& entry : FunctionsOf(document)) {
        Require(entry.line >= before && entry.line <= document.lastLine(LastUsed::Text));
        Require(!entry.name.empty() && entry.name.find('\t') == std::string::npos);
        before = entry.line;
    }
    return 0;
}

}  // namespace vexa::fuzz

// Any bytes as a command line: it is cut into arguments no longer than it, and every reader of it ends.
#include <cstdint>
#include <string>

#include "fuzz/fuzzing.h"
#include "shell/command_line.h"
#include "shell/file_opening.h"
#include "shell/hand_off.h"
#include "shell/outside_opens.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string whole(data, data + size);
    const CommandLine line = ParseCommandLine(whole);
    std::size_t length = 0;
    for (const std::string& argument : line.arguments) {
        length += argument.size();
        Require(ParseLineOption(argument) >= -1);
    }
    Require(length + line.arguments.size() <= line.text.size() + 1);
    Require(FilesOf(line.arguments).size() <= line.arguments.size());
    const HandOffDecision decision = ShouldHandOff(line.text, line.arguments);
    Require(decision.handOff || decision.line == -1);
    AsksForHelp(line.arguments);
    if (const auto file = FileOfDdeExecute(whole)) Require(file->find('"') == std::string::npos);
    return 0;
}

}  // namespace vexa::fuzz

// A word is found in an index of any bytes exactly when a line behind the title begins with it; an index whose help
// file does not exist goes.
#include <cstdint>
#include <string>
#include <string_view>

#include "base/ascii.h"
#include "base/file.h"
#include "fuzz/fuzzing.h"
#include "quickhelp/help_lookup.h"

namespace vexa::fuzz {

namespace {

constexpr const char* kIndex = "C:\\vHelp\\A.ZIX";

bool HasLine(std::string_view lines, std::string_view keyword) {
    while (!lines.empty()) {
        const std::size_t end = std::min(lines.find('\n'), lines.size());
        std::string_view line = lines.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (EqualIgnoringCase(line.substr(0, keyword.size()), keyword)) return true;
        lines.remove_prefix(std::min(end + 1, lines.size()));
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    platform::MakeDirectory("C:\\vHelp");
    File("C:\\A.HLP", platform::OpenMode::CreateAlways);
    Input input(data, size);
    const bool isSound = input.byte() % 4 != 0;
    const std::string keyword = input.text(input.byte() % 8);
    const std::string lines = input.rest();
    File(kIndex, platform::OpenMode::CreateAlways)
        .write((isSound ? "00001\r\nC:\\A.HLP\r\nTitle\r\n" : std::string()) + lines);

    SilentNotices notices;
    HelpLookup lookup("C:\\vHelp", notices);
    const LookupResult result = lookup.Lookup(keyword);
    Require(result == LookupResult::OneMatch || result == LookupResult::NoMatch);
    Require((result == LookupResult::OneMatch) == (lookup.chosen() != nullptr));
    if (isSound) Require((result == LookupResult::OneMatch) == HasLine(lines, keyword));
    if (isSound) Require(platform::PathExists(kIndex));
    return 0;
}

}  // namespace vexa::fuzz

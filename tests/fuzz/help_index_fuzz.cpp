// Any bytes, and sound help files with some bytes changed, give an index whose count is right, or none.
#include <cstdint>
#include <string>
#include <vector>

#include "base/file.h"
#include "fuzz/fuzzing.h"
#include "quickhelp/help_file_writer.h"
#include "quickhelp/help_index.h"

namespace vexa::fuzz {

namespace {

// With trees of one to four levels and a directory of several pages.
std::string SoundFile(std::uint8_t kind) {
    std::vector<test::HelpKeyword> keywords;
    for (int i = 0; i < 12; ++i)
        keywords.push_back({"keyword" + std::to_string(i)});
    test::HelpFileWriter writer;
    if (kind % 2 == 0)
        writer.addSystem15("Title");
    else
        writer.addSystem(33, {{test::kTitleRecord, test::TextZ("Title")}, {2, "other"}});
    writer.addKeywords(keywords, {static_cast<std::uint16_t>(kind < 128 ? 2048 : 256), "F24", 2u + kind % 12});
    writer.setDirectoryEntriesPerPage(2);
    return writer.bytes();
}

std::string HelpFile(Input& input) {
    const std::uint8_t kind = input.byte();
    if (kind == 0) return input.rest();
    std::string bytes = SoundFile(kind);
    constexpr int kMostChanges = 32;
    for (int i = 0; i < kMostChanges && !input.rest().empty(); ++i) {
        const std::size_t page = input.byte();
        const std::size_t position = page * 256 + input.byte();
        bytes[position % bytes.size()] = static_cast<char>(input.byte());
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    Input input(data, size);
    const std::string bytes = HelpFile(input);
    File("C:\\A.HLP", platform::OpenMode::CreateAlways).write(bytes);
    const IndexResult result = BuildHelpIndex("A", "C:\\A.ZIX");
    Require(platform::FindFiles("C:\\A.ZIX*").size() == (result == IndexResult::Written ? 1u : 0u));
    if (result != IndexResult::Written) return 0;
    const std::string index = File("C:\\A.ZIX", platform::OpenMode::Read).readAll(SIZE_MAX).value();
    Require(index.size() <= 4 * bytes.size() + 100);
    const auto lines = std::ranges::count(index, '\n');
    Require(lines >= 2 + std::stoi(index.substr(0, 5)));
    return 0;
}

}  // namespace vexa::fuzz

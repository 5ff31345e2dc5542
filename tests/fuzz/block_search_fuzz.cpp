// Whatever a block holds and whatever is looked for: looking at the block as a whole finds the lines, and in each the
// match, that looking at one line after the other finds, and leaves every byte of the block as it was.
#include <cstdint>
#include <string>

#include "fuzz/fuzzing.h"
#include "search/files/block_search.h"

namespace vexa::fuzz {
namespace {

void SetOptions(SearchOptions& options, Input& input) {
    const std::uint8_t flags = input.byte();
    options.setMatchCase(flags & 1);
    options.setWholeWord(flags & 2);
    options.setRegularExpression(flags & 4);
    const std::uint8_t length = input.byte();
    options.setFindText(input.text(length % 30), flags & 8);
}

// The first line at or after a position that has a match; the end of the text when there is none.
struct SlowSearch {
    std::size_t begin, end;
    std::optional<LineMatch> match;

    SlowSearch(LineSearch& search, const std::string& text, std::size_t from) : begin(from), end(from) {
        for (; begin < text.size() && !match; begin = match ? begin : end + 1) {
            end = std::min(text.find('\n', begin), text.size());
            const bool hasCarriageReturn = end < text.size() && end > begin && text[end - 1] == '\r';
            const std::string line = text.substr(begin, end - begin - (hasCarriageReturn ? 1 : 0));
            match = search.find(line, CharColumn(0));
        }
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    SearchOptions options;
    SetOptions(options, input);
    const std::string text = input.rest().substr(0, 3000);
    std::string block = text + "x";  // the byte behind the block is the caller's, too
    BlockSearch search(options);
    LineSearch slow(options, {});

    char* const first = block.data();
    char* const end = first + text.size();
    for (char* from = first; from < end;) {
        const std::optional<FoundLine> found = search.find(from, end);
        const SlowSearch wanted(slow, text, static_cast<std::size_t>(from - first));
        Require(block == text + "x" && found.has_value() == wanted.match.has_value());
        if (!found) break;
        Require(found->begin == first + wanted.begin && found->match == *wanted.match);
        from = found->next;
    }
    return 0;
}

}  // namespace vexa::fuzz

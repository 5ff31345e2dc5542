// Whatever stands in a recovery file: it is damaged, or gives a document its text, which kept again is the same. The
// checksum is put right in every other input, so that what stands behind it is reached.
#include <cstdint>
#include <string>

#include "base/checksum.h"
#include "fuzz/fuzzing.h"
#include "shell/unsaved/recovery_offer.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    Input input(data, size);
    const bool isSealed = input.byte() % 2 == 0;
    std::string bytes = input.rest();
    if (isSealed && bytes.size() >= kUncounted)
        SealRecovery(bytes, ChecksumOf(std::string_view(bytes).substr(kUncounted)));
    const auto read = ReadRecoveryText(bytes);
    if (!read) return 0;
    const auto recovered = *read;
    IsTextOfFile(recovered);

    SilentNotices notices;
    EditorOptions options;
    TextDocument document(options, notices);
    document.setName(recovered.path());
    document.newEmpty();
    GiveText(document, recovered);
    LineViews lines = recovered.lines();
    while (lines.size() > 1 && lines.back().empty())
        lines.pop_back();
    Require(vexa::LinesOf(document) == lines);
    std::string again = RecoveryBeginning(document);
    for (const std::string_view line : vexa::LinesOf(document))
        again.append(line) += '\n';
    SealRecovery(again, ChecksumOf(std::string_view(again).substr(kUncounted)));
    const auto second = ReadRecoveryText(again);
    Require(second && second->lines() == lines && second->path() == recovered.path());
    while (document.history().undo()) {
    }
    Require(vexa::LinesOf(document) == LineViews{""});
    return 0;
}

}  // namespace vexa::fuzz

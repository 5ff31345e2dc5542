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
    options.habits.keepFiles = recovered.head.keepsLineEnds != 0;
    TextDocument document(options, notices);
    document.setName(recovered.path());
    document.newEmpty();
    GiveText(document, recovered);
    LineViews lines = recovered.lines();
    while (!options.habits.keepFiles && lines.size() > 1 && lines.back().empty())
        lines.pop_back();
    Require(vexa::LinesOf(document) == lines);
    std::string again = RecoveryBeginning(document);
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex i; i <= last; ++i)
        again.append(document.text(i)).append(RecoveredLineEnd(document, i, last));
    SealRecovery(again, ChecksumOf(std::string_view(again).substr(kUncounted)));
    const auto second = ReadRecoveryText(again);
    Require(second && second->lines() == lines && second->path() == recovered.path());
    while (document.history().undo()) {
    }
    Require(vexa::LinesOf(document).size() == 1 && document.text(LineIndex(0)).empty());
    return 0;
}

}  // namespace vexa::fuzz

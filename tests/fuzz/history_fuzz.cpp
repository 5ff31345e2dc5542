// Any bytes give a history list within its limits, which comes back from its file as it was.
#include <cstdint>
#include <string>

#include "base/file.h"
#include "base/history_list.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    const std::string bytes(data, data + size);
    File("C:\\A.his", platform::OpenMode::CreateAlways).write(bytes);
    HistoryList list("C:", "A.his");
    for (const std::string& entry : list.entries())
        Require(!entry.empty() && entry.size() <= HistoryList::kEntryLimit);
    const std::size_t before = list.entries().size();
    list.Add(bytes);
    Require(list.entries().size() <= before + 1);
    // Saving waits for the disk, so only some inputs go that far.
    if (size % 16 != 0) return 0;
    list.Save();
    const HistoryList again("C:", "A.his");
    Require(again.entries() == list.entries() && again.nextSlot() == list.nextSlot());
    return 0;
}

}  // namespace vexa::fuzz

// Any bytes give a history list within its limits, which comes back from its file as it was.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/file.h"
#include "base/history_list.h"
#include "base/platform/host/sandbox.h"

namespace {

void Require(bool held) {
    if (!held) std::abort();
}

void MakeDisk() {
    static const bool made = [] {
        const auto root = std::filesystem::temp_directory_path() / ("vexa-fuzz-" + std::to_string(getpid()));
        std::filesystem::create_directories(root / "c");
        vexa::platform::host::SetSandboxRoot(root.string());
        return true;
    }();
    static_cast<void>(made);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    const std::string bytes(data, data + size);
    vexa::File("C:\\A.his", vexa::platform::OpenMode::CreateAlways).write(bytes);
    vexa::HistoryList list("C:", "A.his");
    for (const std::string& entry : list.entries())
        Require(!entry.empty() && entry.size() <= vexa::HistoryList::kEntryLimit);
    const std::size_t before = list.entries().size();
    list.Add(bytes);
    Require(list.entries().size() <= before + 1);
    // Saving waits for the disk, so only some inputs go that far.
    if (size % 16 != 0) return 0;
    list.Save();
    const vexa::HistoryList again("C:", "A.his");
    Require(again.entries() == list.entries() && again.nextSlot() == list.nextSlot());
    return 0;
}

// Whatever stands in the file by which a start hands its own over: it is taken once, as a name that keeps its limit,
// and a possible name that is handed over comes back as it was.
#include <cstdint>
#include <string>

#include "base/file.h"
#include "base/file_name.h"
#include "fuzz/fuzzing.h"
#include "shell/file_name_check.h"
#include "shell/hand_off.h"

namespace vexa::fuzz {
namespace {

constexpr const char* kHandOffFile = "C:\\VEXACMD.DAT";
constexpr std::size_t kPathLimit = 255;

FileAtLine Taken() {
    HandOffInbox inbox;
    const std::optional<FileAtLine> taken = inbox.take();
    Require(taken && taken->file.size() <= kPathLimit);
    Require(taken->file.find('\n') == std::string::npos && !inbox.take());
    return *taken;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    SilentNotices notices;
    const std::string bytes(data, data + size);
    File(kHandOffFile, platform::OpenMode::CreateAlways).write(bytes);
    const FileAtLine taken = Taken();
    IsUsableName(taken.file, notices);

    const std::int32_t line = taken.line < 0 ? -1 : taken.line;
    if (!HandOffToRunningInstance(taken.file, line, notices)) return 0;
    const FileAtLine first = Taken();
    Require(first.line == line);
    if (FaultOfName(first.file) != NameFault::None) return 0;
    Require(HandOffToRunningInstance(first.file, -1, notices));
    Require(Taken().file == first.file);
    return 0;
}

}  // namespace vexa::fuzz

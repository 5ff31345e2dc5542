#include "framework/clipboard.h"

#include <cstring>
#include <vector>

#include "framework/handle.h"

namespace vexa {
namespace {

// Another program that has the clipboard open is usually done with it in a moment.
constexpr int kTries = 10;
constexpr DWORD kPause = 10;  // milliseconds

class OpenedClipboard {
  public:
    explicit OpenedClipboard(HWND owner) {
        for (int n = 0; n < kTries && !isOpen_; ++n) {
            if (n > 0) Sleep(kPause);
            isOpen_ = OpenClipboard(owner);
        }
    }
    ~OpenedClipboard() {
        if (isOpen_) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return isOpen_; }

  private:
    bool isOpen_ = false;
};

struct GlobalMemoryTraits {
    using Value = HGLOBAL;
    static void Close(HGLOBAL memory) { GlobalFree(memory); }
};
using GlobalMemory = Handle<GlobalMemoryTraits>;

// A copy in memory that the clipboard can take over; none when there is no room.
GlobalMemory CopyToGlobal(std::string_view bytes) {
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes.size() + 1));
    void* target = memory ? GlobalLock(memory.get()) : nullptr;
    if (!target) return {};
    std::memcpy(target, bytes.data(), bytes.size());
    GlobalUnlock(memory.get());
    return memory;
}

}  // namespace

// Whatever may fail for want of memory comes before the clipboard loses what it has.
bool PutOnClipboard(HWND owner, std::span<const ClipboardEntry> entries) {
    std::vector<GlobalMemory> copies;
    for (const ClipboardEntry& entry : entries) {
        copies.push_back(CopyToGlobal(entry.bytes));
        if (!copies.back()) return false;
    }
    const OpenedClipboard clipboard(owner);
    if (!clipboard || !EmptyClipboard()) return false;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        if (!SetClipboardData(entries[i].format, copies[i].get())) return false;
        static_cast<void>(copies[i].release());  // the clipboard now owns it
    }
    return true;
}

std::optional<std::string> TakeFromClipboard(HWND owner, UINT format) {
    const OpenedClipboard clipboard(owner);
    const HANDLE memory = clipboard ? GetClipboardData(format) : nullptr;
    const char* bytes = memory ? static_cast<const char*>(GlobalLock(memory)) : nullptr;
    if (!bytes) return std::nullopt;
    std::string copy(bytes, GlobalSize(memory));
    GlobalUnlock(memory);
    return copy;
}

}  // namespace vexa

#include "ui/document/system_clipboard.h"

#include <algorithm>
#include <cstring>

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

// A copy of the bytes in memory that the clipboard can take over; none when there is no room.
GlobalMemory CopyToGlobal(const void* bytes, std::size_t size, std::size_t room) {
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, room));
    void* target = memory ? GlobalLock(memory.get()) : nullptr;
    if (!target) return {};
    std::memcpy(target, bytes, size);
    GlobalUnlock(memory.get());
    return memory;
}

// The clipboard owns what it has taken.
bool Store(UINT format, GlobalMemory& memory) {
    if (!SetClipboardData(format, memory.get())) return false;
    static_cast<void>(memory.release());
    return true;
}

// The bytes of an entry, whose size only its maker knows: at most what the memory holds.
std::optional<std::string> ReadEntry(UINT format) {
    const HANDLE memory = GetClipboardData(format);
    const char* bytes = memory ? static_cast<const char*>(GlobalLock(memory)) : nullptr;
    if (!bytes) return std::nullopt;
    std::string copy(bytes, GlobalSize(memory));
    GlobalUnlock(memory);
    return copy;
}

}  // namespace

SystemClipboard::SystemClipboard() : kindFormat_(RegisterClipboardFormatA("VexaPrivate")) {}

bool SystemClipboard::put(std::string_view text, MarkMode kind) {
    const auto number = static_cast<std::int32_t>(kind);
    GlobalMemory kindCopy = CopyToGlobal(&number, sizeof number, sizeof number);
    GlobalMemory textCopy = CopyToGlobal(text.data(), text.size(), text.size() + 1);
    const OpenedClipboard clipboard(owner_);
    if (!kindCopy || !textCopy || !clipboard || !EmptyClipboard()) return false;
    return Store(kindFormat_, kindCopy) && Store(CF_TEXT, textCopy);
}

bool SystemClipboard::hasText() const {
    return IsClipboardFormatAvailable(CF_TEXT);
}

std::optional<std::string> SystemClipboard::getText() const {
    const OpenedClipboard clipboard(owner_);
    std::optional<std::string> text = clipboard ? ReadEntry(CF_TEXT) : std::nullopt;
    if (text) text->resize(std::min(text->find('\0'), text->size()));
    return text;
}

MarkMode SystemClipboard::getKind() const {
    const OpenedClipboard clipboard(owner_);
    const std::optional<std::string> bytes = clipboard ? ReadEntry(kindFormat_) : std::nullopt;
    std::int32_t kind = 0;
    if (!bytes || bytes->size() < sizeof kind) return MarkMode::Lines;
    std::memcpy(&kind, bytes->data(), sizeof kind);
    return static_cast<MarkMode>(kind);
}

}  // namespace vexa

#include "ui/clipboard.h"

#include <windows.h>

#include <cstring>

#include "ui/wait.h"

namespace vexa::test {

OpenedClipboard::OpenedClipboard() {
    WaitUntil([this] { return isOpen_ = OpenClipboard(nullptr); });
}

OpenedClipboard::~OpenedClipboard() {
    if (isOpen_) CloseClipboard();
}

std::string ClipboardText() {
    const OpenedClipboard clipboard;
    const HANDLE memory = GetClipboardData(CF_TEXT);
    if (!memory) return "(nothing)";
    const std::string text = static_cast<const char*>(GlobalLock(memory));
    GlobalUnlock(memory);
    return text;
}

void PutForeignText(const std::string& text) {
    const OpenedClipboard clipboard;
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    std::memcpy(GlobalLock(memory), text.c_str(), text.size() + 1);
    GlobalUnlock(memory);
    SetClipboardData(CF_TEXT, memory);
}

}  // namespace vexa::test

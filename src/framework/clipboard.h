// What all programs share to copy and paste by.
#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vexa {

struct ClipboardEntry {
    UINT format;
    std::string_view bytes;
};

// Empties the clipboard and puts the entries on it, each with a byte 0 after it. The owner is a window; the system
// takes nothing without one. False when another program keeps the clipboard open, or there is no memory.
bool PutOnClipboard(HWND owner, std::span<const ClipboardEntry> entries);
// What is there in a format, with what its maker has left behind it; none when nothing is.
std::optional<std::string> TakeFromClipboard(HWND owner, UINT format);

}  // namespace vexa

// The system's dialog that asks for a folder.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace vexa {

// The full path of the folder that the user picked; none when cancelled, and for what is no folder of a disk.
std::optional<std::string> AskFolder(HWND owner, const std::string& title);

}  // namespace vexa

#include "framework/system_library.h"

#include <string>

#include "framework/system_function.h"

namespace vexa {

HMODULE LoadSystemLibrary(const char* name) {
    char directory[MAX_PATH] = "";
    const UINT length = GetSystemDirectoryA(directory, sizeof(directory));
    if (length == 0 || length >= sizeof(directory)) return nullptr;
    return LoadLibraryA((std::string(directory, length) + "\\" + name).c_str());
}

void LoadSystemLibrariesAlone() {
    using SetDirectories = BOOL WINAPI(DWORD flags);
    using SetDirectory = BOOL WINAPI(const char* directory);
    constexpr DWORD kSystemDirectory = 0x800;
    auto* const setDirectories = FindSystemFunction<SetDirectories>("kernel32.dll", "SetDefaultDllDirectories");
    if (setDirectories && setDirectories(kSystemDirectory)) return;
    auto* const setDirectory = FindSystemFunction<SetDirectory>("kernel32.dll", "SetDllDirectoryA");
    if (setDirectory) setDirectory("");
}

}  // namespace vexa

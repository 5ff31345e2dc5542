#include "framework/system_library.h"

#include <string>

namespace vexa {

HMODULE LoadSystemLibrary(const char* name) {
    char directory[MAX_PATH] = "";
    const UINT length = GetSystemDirectoryA(directory, sizeof(directory));
    if (length == 0 || length >= sizeof(directory)) return nullptr;
    return LoadLibraryA((std::string(directory, length) + "\\" + name).c_str());
}

}  // namespace vexa

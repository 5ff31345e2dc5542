#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

void DebugOutput(std::string_view text) {
    OutputDebugStringA((std::string(text) + "\r\n").c_str());
}

}  // namespace vexa::platform

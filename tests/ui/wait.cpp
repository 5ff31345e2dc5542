#include "ui/wait.h"

#include <windows.h>

namespace vexa::test {

bool WaitUntil(const std::function<bool()>& condition) {
    constexpr DWORD kPause = 10;
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience) return false;
        Sleep(kPause);
    }
    return true;
}

}  // namespace vexa::test

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

void AwaitDisplaysNews() {
    constexpr int kRounds = 6;
    const HDC screen = GetDC(nullptr);
    for (int i = 0; i < kRounds; ++i) {
        for (const HWND window : {GetForegroundWindow(), GetDesktopWindow()})
            SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr);
        GetPixel(screen, 0, 0);  // answered by the display after what it was asked before
    }
    ReleaseDC(nullptr, screen);
}

}  // namespace vexa::test

#include "framework/title_bar.h"

#include "framework/system_function.h"

namespace vexa {
namespace {

// The attribute's number on present systems; younger than the headers this is built for.
constexpr DWORD kUseDarkMode = 20;

using SetWindowAttribute = HRESULT WINAPI(HWND, DWORD, const void*, DWORD);

}  // namespace

void SetDarkTitleBar(HWND window, bool dark) {
    static SetWindowAttribute* const setAttribute =
        FindSystemFunction<SetWindowAttribute>("dwmapi.dll", "DwmSetWindowAttribute");
    const BOOL value = dark;
    if (setAttribute) setAttribute(window, kUseDarkMode, &value, sizeof(value));
}

}  // namespace vexa

#include "framework/title_bar.h"

namespace vexa {
namespace {

// The attribute's number on present systems; younger than the headers this is built for.
constexpr DWORD kUseDarkMode = 20;

using SetWindowAttribute = HRESULT(WINAPI*)(HWND, DWORD, const void*, DWORD);

// Only newer systems have the library, which then stays loaded for as long as the program runs.
SetWindowAttribute FindSetWindowAttribute() {
    const HMODULE library = LoadLibraryA("dwmapi.dll");
    const FARPROC found = library ? GetProcAddress(library, "DwmSetWindowAttribute") : nullptr;
    // Through void*: the compiler cannot know that the signature is the right one.
    return reinterpret_cast<SetWindowAttribute>(reinterpret_cast<void*>(found));
}

}  // namespace

void SetDarkTitleBar(HWND window, bool dark) {
    static const SetWindowAttribute setAttribute = FindSetWindowAttribute();
    const BOOL value = dark;
    if (setAttribute) setAttribute(window, kUseDarkMode, &value, sizeof(value));
}

}  // namespace vexa

#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

std::string AnsiCharacter(char32_t character) {
    const char32_t above = character - 0x10000;
    const bool isPair = character >= 0x10000;
    const wchar_t wide[] = {static_cast<wchar_t>(isPair ? 0xD800 + (above >> 10) : character),
                            static_cast<wchar_t>(0xDC00 + (above & 0x3FF))};
    char ansi[8];
    BOOL isMissing = FALSE;
    // Where UTF-8 is the code page no character is missing, and the question is refused.
    BOOL* const asked = GetACP() == CP_UTF8 ? nullptr : &isMissing;
    const int length = WideCharToMultiByte(CP_ACP, 0, wide, isPair ? 2 : 1, ansi, sizeof(ansi), nullptr, asked);
    return {ansi, isMissing ? 0 : static_cast<std::size_t>(length)};
}

}  // namespace vexa::platform

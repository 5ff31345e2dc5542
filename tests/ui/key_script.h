// Keystrokes written as text.
#pragma once

#include <windows.h>

#include <string_view>

namespace vexa::test {

// A key of the keyboard that goes down or, by its flags, up.
INPUT KeyInput(WORD key, DWORD flags);

// Presses keys as a keyboard would: "abc{Enter}{Shift+Down*3}{Alt+W}". In braces stand modifiers (Ctrl, Alt, Shift),
// the key's name or character, and how often. An unknown name fails by an exception.
void PressKeys(std::string_view script);

}  // namespace vexa::test

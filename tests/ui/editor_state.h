// What keeps the keyboard of the running editor, asked of the system.
#pragma once

#include <string>

#include "ui/editor.h"

namespace vexa::test {

// Whether a menu or the moving of a window has the keyboard.
bool IsInMode(const Editor& editor);

// Windows, focus, modes and messages, for whoever looks why a test fails; takes a picture of that name, too.
std::string StateOf(const Editor& editor, const std::string& picture);

}  // namespace vexa::test

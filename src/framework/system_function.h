// Functions that only newer systems have, looked up by name while the program runs.
#pragma once

#include <windows.h>

#include "framework/system_library.h"

namespace vexa {

// Null where this system has no such function. Its library then stays loaded for as long as the program runs.
template <class Function>
Function* FindSystemFunction(const char* library, const char* name) {
    const HMODULE module = LoadSystemLibrary(library);
    const FARPROC found = module ? GetProcAddress(module, name) : nullptr;
    // Through void*: the compiler cannot know that the signature is the right one.
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

}  // namespace vexa

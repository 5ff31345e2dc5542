// The system's own libraries, by their full paths: a file of the same name beside the program is never loaded.
#pragma once

#include <windows.h>

namespace vexa {

// A library of the system's directory, by its file name; null when the system has none. It stays loaded for as long as
// the program runs.
HMODULE LoadSystemLibrary(const char* name);

// From now on a library that the program or the system loads by its bare name is looked for in the system's directory
// alone, on systems that can be told so; without the current directory on others that can be told that.
void LoadSystemLibrariesAlone();

}  // namespace vexa

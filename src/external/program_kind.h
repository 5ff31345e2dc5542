// What kind of program a file is, and where a program of a bare name is.
#pragma once

#include <optional>
#include <string>

#include "external/program_request.h"

namespace vexa {

// By the file's first bytes, else by its extension. What is no DOS program counts as one of Windows, also a file that
// cannot be read.
ProgramKind KindOfProgram(const std::string& path);

// The full path of the program that a name means, in capitals: a name with a directory must be that of a file; a bare
// one is looked for in the directories of a search path ("C:\BIN;C:\TOOLS"), and nowhere else. A name without an
// extension may also be that of a program with one. None when there is no such file.
std::optional<std::string> FindProgram(const std::string& name, const std::string& searchPath);

}  // namespace vexa

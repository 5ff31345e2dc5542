// Names that the user gives to files.
#pragma once

#include <string>

#include "base/notices.h"

namespace vexa {

// Whether a path can be that of a file; one that cannot is refused with a message box.
bool IsUsableName(const std::string& path, Notices& notices);

}  // namespace vexa

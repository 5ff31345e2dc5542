// Which file a name means that was given to be opened.
#pragma once

#include <string>

namespace vexa {

// The full name of the file: the name itself when it has a drive and also a directory or a file part, else the current
// directory and the part of the name after its last "\". A directory part without a drive is dropped on purpose: such
// names come from tools that name their files relative to places of their own.
std::string OpenPathOf(const std::string& name);

}  // namespace vexa

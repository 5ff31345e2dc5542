// Which file a name means that was given to be opened.
#pragma once

#include <string>

namespace vexa {

// The full name of the file, in the system's full and long form. A name with a drive and also a directory or a file
// part, or of a file on a share, says itself where the file is; of any other name the part after its last "\" is looked
// for in the current directory. A directory part without a drive is dropped on purpose: such names come from tools that
// name their files relative to directories of their own. What is no path stays as it is.
std::string OpenPathOf(const std::string& name);

}  // namespace vexa

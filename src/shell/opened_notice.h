// What the status line says of a file that has just been opened.
#pragma once

#include <string>

#include "document/text/text_document.h"

namespace vexa {

// That the file may not be written, and that its line ends are not those that a save writes; empty when there is
// nothing to say.
std::string OpenedNotice(const TextDocument& document);

}  // namespace vexa

// Opens the file that the text at the caret names.
#pragma once

#include <optional>
#include <string>

#include "base/notices.h"
#include "document/text/text_document.h"
#include "shell/file_opening.h"

namespace vexa {

// The full path of a file that a document names, with slashes of either kind. A name without a place of its own is
// looked for beside the document, in the current directory and in the directories of the environment variable INCLUDE,
// in that order. None when there is no such file.
std::optional<std::string> FindIncluded(const std::string& name, const std::string& documentPath);

// Opens the file and goes to the line that is named with it. False when there is none, which the user is told.
bool OpenInclude(const TextDocument& document, FileOpening& opening, Notices& notices);

}  // namespace vexa

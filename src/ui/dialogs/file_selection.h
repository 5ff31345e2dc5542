// What the file dialogs offer and what their answers mean.
#pragma once

#include <string>
#include <vector>

#include "base/editor_options.h"

namespace vexa {

struct FileKind {
    std::string label;
    std::string patterns;  // separated by ";"
};

// The kinds of file in the order of the dialog's list: the user's own filters first.
std::vector<FileKind> OfferedFileKinds(const EditorOptions& options);

// The full names in the answer of an Open dialog: one path, or a directory and the names of several files, separated by
// zero bytes in the Explorer style. The old style separates them by blanks, which a single path may hold itself: it is
// a list only when it begins with something that exists and is not, as a whole, the path of something.
std::vector<std::string> SplitSelection(const std::string& answer);

}  // namespace vexa

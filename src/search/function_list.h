// The functions of a document: where each begins, found without knowing more of the language than its outlines.
#pragma once

#include <string>
#include <vector>

#include "base/units.h"
#include "document/text/text_document.h"

namespace vexa {

struct FunctionEntry {
    std::string name;  // its line from the first character that is no blank up to the parameters
    LineIndex line;    // the one that the name is in

    bool operator==(const FunctionEntry&) const = default;
};

// In the order of the lines. The extension of the document's name decides by which rules functions are found; those of
// C serve every extension without rules of its own.
std::vector<FunctionEntry> FunctionsOf(const TextDocument& document);

}  // namespace vexa

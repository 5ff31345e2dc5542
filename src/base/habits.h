// The rules that a user may choose today's form of. What has always been so is given, and each choice changes one rule.
#pragma once

#include "base/config_store.h"

namespace vexa {

// A plain value, handed to whoever keeps one of the rules and asked in the one function that does. It takes effect at
// the rule's next use; what a document has read stays as it was read.
struct Habits {
    bool keepFiles = false;          // line ends, the last line's end and Ctrl-Z are written as they were read
    bool largeFiles = false;         // neither long lines nor long files are cut
    bool largeClipboard = false;     // blocks of any size are copied
    bool wholeSession = false;       // all documents come back, and the File menu lists more recent files
    bool languageQuotes = false;     // languages say how their quotes are written
    bool replacementGroups = false;  // replacements of regular expressions can hold what was found
    bool searchAround = false;       // a search goes on at the other end of the text
    bool keepMarking = false;        // a copied text stays marked, and typing replaces what is marked

    // From and to section "Extended" of the settings. A missing value, and one that is no number, is not chosen.
    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;

    bool operator==(const Habits&) const = default;
};

}  // namespace vexa

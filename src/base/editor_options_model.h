// The rules of the "Editor Options" dialog: what its controls show, which are enabled, and what "Update" accepts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/editor_options.h"
#include "base/strings.h"

namespace vexa {

// What may be typed into a filter field; the record keeps one character less.
inline constexpr std::size_t kFilterFieldLimit = 50;

// The dialog's controls as values: numbers are as typed, so nothing is refused before "Update".
struct EditorOptionsModel {
    explicit EditorOptionsModel(const EditorOptions& options);

    DisplayModeValue displayMode;  // the checked radio button
    bool tabsAsSpaces;
    std::string tabSize;
    bool lineWrap;
    std::string wrapColumn;
    bool autoBackup;
    std::string backupInterval;  // minutes
    bool restoreDirectory;
    bool restoreFiles;
    bool smartIndent;
    bool hasMargin;
    bool lineNumbers;
    bool restoreSize;
    bool multipleCopies;
    bool fileRead;
    bool fileWrite;
    std::string filter1;
    std::string filter2;

    bool wrapColumnEnabled() const { return lineWrap; }
    bool backupIntervalEnabled() const { return autoBackup; }
    bool lineNumbersEnabled() const { return hasMargin; }

    // Stores the controls in the record. A refusal gives the text that explains it and stores nothing;
    // the dialog then stays open.
    std::optional<TextId> update(EditorOptions& options) const;
};

}  // namespace vexa

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

// The dialog's controls as values: numbers are as typed, so nothing is refused before "Update". What a control shows as
// the record has it stands in the model's own copy of the record.
struct EditorOptionsModel {
    explicit EditorOptionsModel(const EditorOptions& stored);

    EditorOptions options;
    bool tabsAsSpaces;
    std::string tabSize;
    std::string wrapColumn;
    std::string backupInterval;  // minutes

    bool wrapColumnEnabled() const { return options.LineWrap; }
    bool backupIntervalEnabled() const { return options.AutoBackup; }
    bool lineNumbersEnabled() const { return options.HasMargin; }

    // Stores the controls in the record. A refusal gives the text that explains it and stores nothing;
    // the dialog then stays open.
    std::optional<TextId> update(EditorOptions& stored) const;
};

}  // namespace vexa

#include "base/editor_options_model.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

// Any other number in the settings file is shown, and stored again, as the default mode.
DisplayModeValue ShownMode(std::int32_t mode) {
    switch (mode) {
        case kCreateTiled:
        case kCreateMinimized:
        case kCreateMaximized:
            return static_cast<DisplayModeValue>(mode);
        default:
            return kCreateDefault;
    }
}

std::int32_t Magnitude(const std::string& typed) {
    const std::int32_t number = std::max(LeadingInteger(typed), -INT32_MAX);
    return number < 0 ? -number : number;
}

}  // namespace

EditorOptionsModel::EditorOptionsModel(const EditorOptions& options)
    : displayMode(ShownMode(options.DisplayMode)),
      tabsAsSpaces(!options.UseTabs),
      tabSize(std::to_string(options.TabSize)),
      lineWrap(options.LineWrap),
      wrapColumn(std::to_string(options.WrapColumn)),
      autoBackup(options.AutoBackup),
      backupInterval(std::to_string(options.BackupInterval)),
      restoreDirectory(options.RestoreDirectory),
      restoreFiles(options.RestoreFiles),
      smartIndent(options.SmartIndent),
      hasMargin(options.HasMargin),
      lineNumbers(options.LineNumbers),
      restoreSize(options.RestoreSize),
      multipleCopies(options.MultipleCopies),
      fileRead(options.FileRead),
      fileWrite(options.FileWrite),
      filter1(options.Filter1),
      filter2(options.Filter2) {}

std::optional<TextId> EditorOptionsModel::update(EditorOptions& options) const {
    const std::int32_t newTabSize = LeadingInteger(tabSize);
    if (newTabSize < 1 || newTabSize > 9) return TextId::BadTabSize;
    options.DisplayMode = displayMode;
    options.WrapColumn = Magnitude(wrapColumn);
    options.BackupInterval = Magnitude(backupInterval);
    options.TabSize = newTabSize;
    options.UseTabs = !tabsAsSpaces;
    options.LineWrap = lineWrap && options.WrapColumn != 0;
    options.AutoBackup = autoBackup && options.BackupInterval != 0;
    options.RestoreDirectory = restoreDirectory;
    options.RestoreFiles = restoreFiles;
    options.SmartIndent = smartIndent;
    options.HasMargin = hasMargin;
    options.LineNumbers = lineNumbers;
    options.RestoreSize = restoreSize;
    options.MultipleCopies = multipleCopies;
    options.FileRead = fileRead;
    options.FileWrite = fileWrite;
    options.Filter1 = filter1.substr(0, kFilterLimit);
    options.Filter2 = filter2.substr(0, kFilterLimit);
    return std::nullopt;
}

}  // namespace vexa

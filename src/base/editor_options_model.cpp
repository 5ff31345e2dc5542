#include "base/editor_options_model.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

// Any other number in the settings file is shown, and stored again, as the default mode.
std::int32_t ShownMode(std::int32_t mode) {
    const bool isKnown = mode == kCreateTiled || mode == kCreateMinimized || mode == kCreateMaximized;
    return isKnown ? mode : kCreateDefault;
}

std::int32_t Magnitude(const std::string& typed) {
    const std::int32_t number = std::max(LeadingInteger(typed), -INT32_MAX);
    return number < 0 ? -number : number;
}

}  // namespace

EditorOptionsModel::EditorOptionsModel(const EditorOptions& stored)
    : options(stored),
      tabsAsSpaces(!stored.UseTabs),
      tabSize(std::to_string(stored.TabSize)),
      wrapColumn(std::to_string(stored.WrapColumn)),
      backupInterval(std::to_string(stored.BackupInterval)) {
    options.DisplayMode = ShownMode(stored.DisplayMode);
}

std::optional<TextId> EditorOptionsModel::update(EditorOptions& stored) const {
    const std::int32_t newTabSize = LeadingInteger(tabSize);
    if (newTabSize < 1 || newTabSize > 9) return TextId::BadTabSize;
    stored = options;
    stored.UseTabs = !tabsAsSpaces;
    stored.TabSize = newTabSize;
    stored.WrapColumn = Magnitude(wrapColumn);
    stored.BackupInterval = Magnitude(backupInterval);
    stored.LineWrap = options.LineWrap && stored.WrapColumn != 0;
    stored.AutoBackup = options.AutoBackup && stored.BackupInterval != 0;
    stored.Filter1.resize(std::min(stored.Filter1.size(), kFilterLimit));
    stored.Filter2.resize(std::min(stored.Filter2.size(), kFilterLimit));
    return std::nullopt;
}

}  // namespace vexa

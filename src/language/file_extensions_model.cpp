#include "language/file_extensions_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/platform.h"
#include "base/strings.h"

namespace vexa {
void FileExtensionsModel::readRows() {
    rows_.clear();
    for (const std::string& extension : profiles_.extensions()) {
        ExtensionProfile profile;
        profile.read(profiles_.profilePath(extension));
        rows_.push_back({extension, profile.description()});
    }
}

std::optional<std::size_t> FileExtensionsModel::rowOf(std::string_view extension) const {
    const auto isIt = [extension](const FileExtensionRow& row) { return EqualIgnoringCase(row.extension, extension); };
    const auto found = std::ranges::find_if(rows_, isIt);
    if (found == rows_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows_.begin());
}

bool FileExtensionsModel::deleteProfile(std::size_t row, Notices& notices) {
    const std::string& extension = rows_[row].extension;
    const std::string question = FillText(TextId::DeleteExtension, {extension});
    if (notices.box(question, TextId::ProgramCaption, BoxButtons::YesNo) != BoxAnswer::Yes) return false;
    const std::string path = profiles_.profilePath(extension);
    if (!platform::RemoveFile(path)) {
        const std::string name = path.substr(DirectoryOf(path).size());
        notices.box(FillText(TextId::CannotWriteFile, {name}), TextId::ErrorCaption, BoxButtons::Ok);
        return false;
    }
    readRows();
    return true;
}

}  // namespace vexa

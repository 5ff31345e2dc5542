#include "search/files/file_search_model.h"

#include "base/platform.h"
#include "base/strings.h"
#include "search/pattern_fault.h"

namespace vexa {

namespace {

constexpr const char* kSection = "FileSearch";

}  // namespace

void FileSearchFields::Load(const ConfigStore& store) {
    folder = store.ReadGuarded(kSection, "Folder", folder, kTextLimit);
    patterns = store.ReadGuarded(kSection, "Patterns", patterns, kTextLimit);
    subfolders = store.ReadInt(kSection, "Subfolders", 1) != 0;
}

void FileSearchFields::Save(ConfigStore& store) const {
    const ConfigStore::Batch batch(store);
    store.WriteGuarded(kSection, "Folder", folder);
    store.WriteGuarded(kSection, "Patterns", patterns);
    store.WriteInt(kSection, "Subfolders", subfolders ? 1 : 0);
}

FileSearchModel::FileSearchModel(FindCommands& commands, HistoryList& findHistory, HistoryList& folders,
                                 HistoryList& patterns, const FileSearchFields& initial)
    : FindDialogModel(commands, findHistory), fields(initial), folders_(folders), patterns_(patterns) {}

std::string FileSearchModel::refusal() const {
    if (!canSearch()) return std::string(LoadText(TextId::NoFindText));
    const std::string fault = regularExpression ? FaultOfPattern(findText) : std::string();
    if (!fault.empty()) return fault;
    if (hasLineEnds()) return std::string(LoadText(TextId::NoLineEndsInFiles));
    const std::string folder = platform::FullPath(fields.folder);
    return platform::DirectoryExists(folder) ? std::string() : FillText(TextId::NoSuchFolder, {fields.folder});
}

bool FileSearchModel::hasLineEnds() const {
    SearchOptions typed = options();
    typed.setRegularExpression(regularExpression);
    typed.setFindText(findText, false);
    return typed.searchedText().find('\n') != std::string::npos;
}

FileSearchRequest FileSearchModel::request() {
    storeFindFields(false);
    noteSearch(true);
    folders_.Add(fields.folder);
    patterns_.Add(fields.patterns);
    return {options(), platform::FullPath(fields.folder), fields.patterns, fields.subfolders};
}

}  // namespace vexa

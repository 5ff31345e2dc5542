#include "shell/open_include.h"

#include <algorithm>
#include <vector>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file_name.h"
#include "base/platform.h"
#include "base/strings.h"
#include "base/take_text.h"
#include "language/name_at_caret.h"

namespace vexa {

namespace {

bool HasPlaceOfItsOwn(std::string_view name) {
    return name.starts_with('\\') || (name.size() > 1 && name[1] == ':');
}

bool IsFile(const std::string& path) {
    return IsFullName(path) && platform::PathExists(path) && !platform::DirectoryExists(path);
}

std::string Joined(std::string directory, const std::string& name) {
    if (!directory.empty() && !directory.ends_with('\\') && !directory.ends_with(':')) directory += '\\';
    return directory + name;
}

// Empty parts would mean the current directory once more.
void AddListed(std::vector<std::string>& directories, std::string_view list) {
    while (!list.empty()) {
        std::string directory(TrimBlanks(TakeUpTo(list, ';')));
        std::erase(directory, '"');
        if (!directory.empty()) directories.push_back(directory);
    }
}

std::vector<std::string> PlacesToLook(const std::string& documentPath) {
    std::vector<std::string> directories = {DirectoryOf(documentPath), platform::CurrentDirectory()};
    AddListed(directories, platform::EnvironmentValue("INCLUDE"));
    return directories;
}

}  // namespace

std::optional<std::string> FindIncluded(const std::string& name, const std::string& documentPath) {
    std::string wanted = name;
    std::ranges::replace(wanted, '/', '\\');
    const auto places = HasPlaceOfItsOwn(wanted) ? std::vector<std::string>{""} : PlacesToLook(documentPath);
    for (const std::string& directory : places) {
        const std::string path = platform::FullPath(Joined(directory, wanted));
        if (IsFile(path)) return path;
    }
    return std::nullopt;
}

bool OpenInclude(const TextDocument& document, FileOpening& opening, Notices& notices) {
    const auto names = NamesAtCaret(document.text(document.currentLine()), document.column());
    for (const NamedPlace& place : names) {
        const auto path = FindIncluded(place.name, document.fullPath());
        if (path) return opening.OpenFileAtLine(*path, place.line);
    }
    notices.status(names.empty() ? std::string(LoadText(TextId::NoFileNameAtCursor))
                                 : FillText(TextId::CannotFindFile, {names.front().name}),
                   true, true);
    return false;
}

}  // namespace vexa

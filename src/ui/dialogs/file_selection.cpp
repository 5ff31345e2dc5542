#include "ui/dialogs/file_selection.h"

#include <string_view>

#include "base/directories.h"
#include "base/file_name.h"
#include "base/platform.h"
#include "base/strings.h"

namespace vexa {
namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find(separator));
        if (!part.empty()) parts.emplace_back(part);
        text.remove_prefix(part.size() < text.size() ? part.size() + 1 : part.size());
    }
    return parts;
}

// A dialog may also give names with paths of their own.
std::string Joined(const std::string& directory, const std::string& name) {
    return IsFullName(name) ? name : PrefixOf(directory) + name;
}

// A directory and the names of files in it; or, as some dialogs give it, a path and the names of other files beside it.
std::vector<std::string> JoinWithDirectory(std::vector<std::string> parts) {
    const bool isDirectoryGiven = platform::DirectoryExists(parts[0]);
    const std::string directory = isDirectoryGiven ? parts[0] : DirectoryOf(parts[0]);
    if (isDirectoryGiven) parts.erase(parts.begin());
    for (std::string& name : parts)
        name = Joined(directory, name);
    return parts;
}

FileKind KindOf(TextId label, const std::string& patterns) {
    return {FillText(label, {patterns}), patterns};
}

}  // namespace

std::vector<FileKind> OfferedFileKinds(const EditorOptions& options) {
    std::vector<FileKind> kinds;
    for (const std::string* filter : {&options.Filter1, &options.Filter2}) {
        if (!filter->empty()) kinds.push_back(KindOf(TextId::FilteredFiles, *filter));
    }
    kinds.push_back(KindOf(TextId::AllFiles, "*.*"));
    kinds.push_back(KindOf(TextId::SourceFiles, "*.c;*.cpp;*.cxx;*.h;*.hpp;*.rc;*.asm;*.def"));
    kinds.push_back(KindOf(TextId::TextFiles, "*.txt;*.doc"));
    return kinds;
}

std::vector<std::string> SplitSelection(const std::string& answer) {
    const std::vector<std::string> listed = Split(answer, '\0');
    if (listed.size() > 1) return JoinWithDirectory(listed);
    const std::vector<std::string> parts = Split(answer, ' ');
    const bool isList = parts.size() > 1 && !platform::PathExists(answer) && platform::PathExists(parts[0]);
    return isList ? JoinWithDirectory(parts) : std::vector<std::string>{answer};
}

}  // namespace vexa

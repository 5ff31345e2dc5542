#include "quickhelp/linked_help_file.h"

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/file_name.h"
#include "base/platform.h"
#include "quickhelp/help_index.h"
#include "quickhelp/help_index_reader.h"

namespace vexa {
namespace {

std::string NameIn(const std::string& path) {
    return path.substr(DirectoryOf(path).size());
}

std::string HelpFileOfIndex(const std::string& path) {
    constexpr std::size_t kFirstLines = 1024;  // bytes, and more than two of them take
    const std::string text = File(path, platform::OpenMode::Read).readUpTo(kFirstLines).value_or(std::string());
    HelpIndexReader index(text);
    index.nextLine();  // the number of keywords
    return std::string(index.nextLine().value_or(std::string_view()));
}

}  // namespace

std::optional<std::string> FindLinkedHelpFile(const std::string& name, const std::string& from,
                                              const std::string& indexDirectory) {
    std::string file = NameIn(name);
    if (!IsNamePart(file)) return std::nullopt;
    if (file.find('.') == std::string::npos) file += ".hlp";
    const std::string beside = DirectoryOf(from) + file;
    if (platform::PathExists(beside)) return beside;
    for (const std::string& index : FindHelpIndexes(indexDirectory)) {
        const std::string installed = HelpFileOfIndex(indexDirectory + "\\" + index);
        if (EqualIgnoringCase(NameIn(installed), file) && platform::PathExists(installed)) return installed;
    }
    return std::nullopt;
}

}  // namespace vexa

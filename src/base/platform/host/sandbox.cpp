#include "base/platform/host/sandbox.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "base/ascii.h"
#include "base/file_name.h"
#include "base/platform.h"

namespace vexa::platform::host {

namespace {

// The entry of a folder whose name is the part, letter case ignored; the part itself when there is none.
std::string SpelledAsOnDisk(const std::string& folder, const std::string& part) {
    struct stat info;
    if (lstat((folder + "/" + part).c_str(), &info) == 0) return part;
    const auto close = [](DIR* directory) { closedir(directory); };
    const std::unique_ptr<DIR, decltype(close)> directory(opendir(folder.c_str()), close);
    if (!directory) return part;
    while (const dirent* entry = readdir(directory.get()))
        if (EqualIgnoringCase(entry->d_name, part)) return entry->d_name;
    return part;
}

}  // namespace

Places& ThePlaces() {
    static Places places;
    return places;
}

void SetSandboxRoot(const std::string& folder) {
    ThePlaces() = Places();
    ThePlaces().root = folder;
}

void SetProgramPath(const std::string& path) {
    ThePlaces().programPath = path;
}

std::string HostPath(const std::string& path) {
    const std::string full = FullPath(path);
    if (ThePlaces().root.empty() || full.size() < 3 || full[1] != ':') return {};
    std::string host = ThePlaces().root + "/" + LowerAscii(full[0]);
    for (std::size_t begin = 3; begin < full.size();) {
        const std::size_t end = std::min(full.find('\\', begin), full.size());
        const std::string part = full.substr(begin, end - begin);
        if (!IsNamePart(part)) return {};
        host += "/" + SpelledAsOnDisk(host, part);
        begin = end + 1;
    }
    return full.ends_with('\\') ? host + "/" : host;
}

}  // namespace vexa::platform::host

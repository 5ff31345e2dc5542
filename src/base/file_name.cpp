#include "base/file_name.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/take_text.h"

namespace vexa {

namespace {

bool IsDevice(std::string_view name) {
    const std::string_view stem = name.substr(0, name.find('.'));
    for (const char* device : {"CON", "PRN", "AUX", "NUL"})
        if (EqualIgnoringCase(stem, device)) return true;
    const bool numbered = stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9';
    return numbered && (EqualIgnoringCase(stem.substr(0, 3), "COM") || EqualIgnoringCase(stem.substr(0, 3), "LPT"));
}

bool AreNameParts(std::string_view path) {
    while (!path.empty()) {
        if (!IsNamePart(TakeUpTo(path, '\\'))) return false;
    }
    return true;
}

}  // namespace

NameFault FaultOfName(const std::string& path) {
    const bool isEmpty = path.find_first_not_of(' ') == std::string::npos;
    if (isEmpty || path.find('\0') != std::string::npos) return NameFault::NotAFile;
    const std::string full = platform::FullPath(path);
    if (full.empty()) return NameFault::TooLong;
    if (platform::PathExists(full)) return NameFault::None;
    constexpr std::size_t kBehindDrive = 3;
    const bool isFile = !full.ends_with('\\') && full.size() > kBehindDrive;
    return isFile && AreNameParts(full.substr(2)) ? NameFault::None : NameFault::NotAFile;
}

bool IsFullName(std::string_view path) {
    return path.size() > 2 && (path[1] == ':' || path.starts_with("\\\\"));
}

bool IsNamePart(std::string_view part) {
    const auto refused = [](char c) {
        return static_cast<unsigned char>(c) < ' ' || std::string_view("\"*/:<>?|").find(c) != std::string_view::npos;
    };
    return std::ranges::none_of(part, refused) && !IsDevice(part);
}

std::string PrefixOf(std::string_view directory) {
    std::string prefix(directory);
    if (!prefix.ends_with('\\')) prefix += '\\';
    return prefix;
}

}  // namespace vexa

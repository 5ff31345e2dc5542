#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/platform/host/sandbox.h"
#include "base/take_text.h"

namespace vexa::platform {

namespace {

constexpr std::size_t kLongestPath = 259;

bool IsLetter(char c) {
    return LowerAscii(c) >= 'a' && LowerAscii(c) <= 'z';
}

bool NamesDrive(std::string_view path) {
    return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':';
}

void AddParts(std::vector<std::string_view>& parts, std::string_view path) {
    while (!path.empty()) {
        const std::string_view part = TakeUpTo(path, '\\');
        if (part.empty() || part == ".") continue;
        if (part != "..")
            parts.push_back(part);
        else if (!parts.empty())
            parts.pop_back();
    }
}

// Windows drops these from the end of a path.
std::string_view WithoutTrailingDotsAndBlanks(std::string_view name) {
    return name.substr(0, name.find_last_not_of(". ") + 1);
}

}  // namespace

std::string FullPath(const std::string& path) {
    if (path.find_first_not_of(' ') == std::string::npos || path.find('\0') != std::string::npos) return {};
    std::string rest = path;
    std::ranges::replace(rest, '/', '\\');
    if (rest.starts_with("\\\\")) return rest;  // a network path; no host drive
    const host::Places& places = host::ThePlaces();
    std::string full(1, static_cast<char>('A' + places.drive));
    if (NamesDrive(rest)) {
        full[0] = rest[0];
        rest.erase(0, 2);
    }
    full += ':';
    std::vector<std::string_view> parts;
    if (!rest.starts_with('\\'))
        AddParts(parts, places.directories[static_cast<std::size_t>(LowerAscii(full[0]) - 'a')]);
    AddParts(parts, rest);
    if (!parts.empty() && !rest.ends_with('\\')) parts.back() = WithoutTrailingDotsAndBlanks(parts.back());
    for (const std::string_view part : parts)
        full.append("\\").append(part);
    if (parts.empty() || (rest.ends_with('\\') && !full.ends_with('\\'))) full += '\\';
    return full.size() <= kLongestPath ? full : std::string();
}

// No host has a second, short name for a file.
std::string LongPath(const std::string& path) {
    return FullPath(path);
}

std::string CurrentDirectory() {
    return FullPath(".");
}

bool ChangeDirectory(const std::string& path) {
    if (!DirectoryExists(path)) return false;
    std::string full = FullPath(path);
    if (full.ends_with('\\')) full.pop_back();
    host::Places& places = host::ThePlaces();
    places.drive = LowerAscii(full[0]) - 'a';
    places.directories[static_cast<std::size_t>(places.drive)] = full.substr(2);
    return true;
}

bool ChangeDrive(int drive) {
    if (drive < 0 || drive > 25) return false;
    if (!DirectoryExists(std::string(1, static_cast<char>('A' + drive)) + ":\\")) return false;
    host::ThePlaces().drive = drive;
    return true;
}

std::string DriveLetters() {
    std::string letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (DirectoryExists(std::string(1, letter) + ":\\")) letters += letter;
    }
    return letters;
}

std::string ProgramPath() {
    return host::ThePlaces().programPath;
}

std::string EnvironmentValue(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? value : std::string();
}

void SetEnvironmentValue(const std::string& name, const std::string& value) {
    if (value.empty()) {
        unsetenv(name.c_str());
    } else {
        setenv(name.c_str(), value.c_str(), 1);
    }
}

std::string ShortPath(const std::string& path) {
    return PathExists(path) ? path : std::string();
}

}  // namespace vexa::platform

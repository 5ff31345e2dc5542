#include <direct.h>
#include <windows.h>

#include <array>

#include "base/platform.h"

namespace vexa::platform {

namespace {

// Calls a function that fills a path buffer and returns the length; empty when it fails or the buffer is too small.
template <class Fill>
std::string FilledPath(Fill fill) {
    std::array<char, MAX_PATH> buffer{};
    const DWORD length = fill(static_cast<DWORD>(buffer.size()), buffer.data());
    return length < buffer.size() ? std::string(buffer.data(), length) : std::string();
}

}  // namespace

std::string FullPath(const std::string& path) {
    // A byte 0 would end the name early and so make it another's.
    if (path.find('\0') != std::string::npos) return {};
    return FilledPath([&](DWORD size, char* buffer) { return GetFullPathNameA(path.c_str(), size, buffer, nullptr); });
}

// The system lengthens only a path that exists as a whole; of a file still to come, that is its directory.
std::string LongPath(const std::string& path) {
    const auto lengthened = [](const std::string& existing) {
        return FilledPath([&](DWORD size, char* buffer) { return GetLongPathNameA(existing.c_str(), buffer, size); });
    };
    const std::string full = FullPath(path);
    const std::string whole = lengthened(full);
    if (!whole.empty()) return whole;
    const std::size_t nameStart = full.rfind('\\') + 1;
    const std::string directory = lengthened(full.substr(0, nameStart));
    return directory.empty() ? full : directory + full.substr(nameStart);
}

std::string CurrentDirectory() {
    return FilledPath([](DWORD size, char* buffer) { return GetCurrentDirectoryA(size, buffer); });
}

// The run-time library's functions also note the directory of each drive, which the system's own do not.
bool ChangeDirectory(const std::string& path) {
    return _chdir(path.c_str()) == 0;
}

bool ChangeDrive(int drive) {
    return drive >= 0 && drive < 26 && _chdrive(drive + 1) == 0;
}

std::string DriveLetters() {
    std::string letters;
    const DWORD drives = GetLogicalDrives();
    for (int drive = 0; drive < 26; ++drive) {
        if (drives >> drive & 1) letters += static_cast<char>('A' + drive);
    }
    return letters;
}

std::string ProgramPath() {
    return FilledPath([](DWORD size, char* buffer) { return GetModuleFileNameA(nullptr, buffer, size); });
}

std::string EnvironmentValue(const std::string& name) {
    std::string value;
    // The size that is wanted counts the end of the text, the length that is given back does not.
    for (DWORD needed = GetEnvironmentVariableA(name.c_str(), nullptr, 0); needed > value.size();) {
        value.resize(needed);
        needed = GetEnvironmentVariableA(name.c_str(), value.data(), needed);
        if (needed < value.size()) value.resize(needed);
    }
    return value;
}

void SetEnvironmentValue(const std::string& name, const std::string& value) {
    SetEnvironmentVariableA(name.c_str(), value.empty() ? nullptr : value.c_str());
}

std::string ShortPath(const std::string& path) {
    return FilledPath([&](DWORD size, char* buffer) { return GetShortPathNameA(path.c_str(), buffer, size); });
}

}  // namespace vexa::platform

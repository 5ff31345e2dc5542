#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

namespace {

// A name without a directory would be looked for in that of Windows.
std::string Located(const std::string& file) {
    return FullPath(file);
}

}  // namespace

std::string ReadSetting(const std::string& file, const std::string& section, const std::string& key,
                        const std::string& fallback, std::size_t size) {
    std::string value(size, '\0');
    const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), value.data(),
                                                  static_cast<DWORD>(size), Located(file).c_str());
    value.resize(length);
    return value;
}

std::int32_t ReadIntSetting(const std::string& file, const std::string& section, const std::string& key,
                            std::int32_t fallback) {
    return static_cast<std::int32_t>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, Located(file).c_str()));
}

bool WriteSetting(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    const std::string located = Located(file);
    // Opened and closed unchanged: a file that may not be written is left alone even where the system would not mind.
    if (PathExists(located)) {
        const FileHandle writable = OpenFile(located, OpenMode::ReadWrite);
        if (writable == kNoFile) return false;
        CloseFile(writable);
    }
    const bool written = WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), located.c_str());
    // Old systems keep the change in memory until told to write it.
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, located.c_str());
    return written;
}

}  // namespace vexa::platform

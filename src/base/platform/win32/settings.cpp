#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

namespace {

// A name without a directory would be looked for in that of Windows.
std::string Located(const std::string& file) {
    return FullPath(file);
}

// Opened and closed unchanged: a file that may not be written is left alone even where the system would not mind.
bool IsWritable(const std::string& file) {
    const FileHandle writable = OpenFile(file, OpenMode::ReadWrite);
    return writable != kNoFile && CloseFile(writable);
}

// Old systems keep what they know of a file in memory until told to write it; it is read anew then.
bool WrittenOut(const std::string& file) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.c_str());
    return PathExists(file);
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
    const std::string changed = located + ".~";
    // The system writes a settings file in place, so it is given a copy, which then takes the file's place.
    const bool isReady = PathExists(located) ? IsWritable(located) && CopyFileA(located.c_str(), changed.c_str(), FALSE)
                                             : RemoveFile(changed);
    const bool isDone = isReady &&
                        WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), changed.c_str()) &&
                        WrittenOut(changed) && RenameFile(changed, located);
    if (!isDone) RemoveFile(changed);
    WrittenOut(located);
    return isDone;
}

}  // namespace vexa::platform

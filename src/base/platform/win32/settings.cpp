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

// Holds a file open while the system reads it: nobody can close it to the system then, which would give the fallback in
// the value's stead without a word.
class ReadableFile {
  public:
    explicit ReadableFile(const std::string& file) : file_(OpenFile(file, OpenMode::Read)) {
        static std::string awaitedInVain;
        for (int tries = file == awaitedInVain ? kTries : 1; !isFree(file) && tries < kTries; ++tries) {
            Sleep(kPause);
            file_ = OpenFile(file, OpenMode::Read);
        }
        isKnown_ = isFree(file);
        awaitedInVain = isKnown_ ? "" : file;
    }
    ~ReadableFile() {
        if (file_ != kNoFile) CloseFile(file_);
    }
    ReadableFile(const ReadableFile&) = delete;
    ReadableFile& operator=(const ReadableFile&) = delete;

    // Read, or known to be missing.
    bool isKnown() const { return isKnown_; }

  private:
    bool isFree(const std::string& file) const { return file_ != kNoFile || !PathExists(file); }

    // Another program that has the file open is usually done with it in a moment. If not, it is waited for once and not
    // again for each value.
    static constexpr int kTries = 10;
    static constexpr DWORD kPause = 20;  // milliseconds

    FileHandle file_;
    bool isKnown_;
};

// Old systems keep what they know of a file in memory until told to write it; it is read anew then.
bool WrittenOut(const std::string& file) {
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.c_str());
    return PathExists(file);
}

}  // namespace

std::optional<std::string> ReadSetting(const std::string& file, const std::string& section, const std::string& key,
                                       const std::string& fallback, std::size_t size) {
    const std::string located = Located(file);
    const ReadableFile readable(located);
    if (!readable.isKnown()) return std::nullopt;
    std::string value(size, '\0');
    value.resize(GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), value.data(),
                                          static_cast<DWORD>(size), located.c_str()));
    return value;
}

std::optional<std::int32_t> ReadIntSetting(const std::string& file, const std::string& section, const std::string& key,
                                           std::int32_t fallback) {
    const std::string located = Located(file);
    const ReadableFile readable(located);
    if (!readable.isKnown()) return std::nullopt;
    return static_cast<std::int32_t>(GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, located.c_str()));
}

bool WriteSettings(const std::string& file, std::span<const Setting> settings) {
    const std::string located = Located(file);
    const std::string changed = located + ".~";
    // The system writes a settings file in place, so it is given a copy, which then takes the file's place.
    const bool isReady = PathExists(located) ? IsWritable(located) && CopyFileA(located.c_str(), changed.c_str(), FALSE)
                                             : RemoveFile(changed);
    bool isDone = isReady;
    for (const auto& [section, key, value] : settings)
        isDone = isDone && WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), changed.c_str());
    isDone = isDone && WrittenOut(changed) && RenameFile(changed, located);
    if (!isDone) RemoveFile(changed);
    WrittenOut(located);
    return isDone;
}

}  // namespace vexa::platform

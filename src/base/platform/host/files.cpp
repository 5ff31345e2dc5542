#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/platform/host/faults.h"
#include "base/platform/host/open_files.h"
#include "base/platform/host/sandbox.h"

namespace vexa::platform {

namespace {

using host::Access;
using host::Call;
using host::HostPath;
using host::IsRefused;

std::optional<struct stat> StatusOf(const std::string& hostPath) {
    struct stat info;
    if (hostPath.empty() || stat(hostPath.c_str(), &info) != 0) return std::nullopt;
    return info;
}

std::uint64_t WriteTimeOf(const struct stat& info) {
    constexpr std::uint64_t kNanoseconds = 1'000'000'000;
    return static_cast<std::uint64_t>(info.st_mtim.tv_sec) * kNanoseconds +
           static_cast<std::uint64_t>(info.st_mtim.tv_nsec);
}

// Windows looks at the file's own attribute, whoever asks, so the mode bits count even for the superuser.
bool MayBeOpened(const struct stat& info, Access access) {
    const mode_t needed = access == Access::Reading ? S_IRUSR : S_IWUSR;
    return S_ISREG(info.st_mode) && (info.st_mode & needed) && host::AdmitsAccess(info, access);
}

int OpenFlags(OpenMode mode) {
    switch (mode) {
        case OpenMode::Read:
            return O_RDONLY;
        case OpenMode::ReadWrite:
            return O_RDWR;
        case OpenMode::CreateAlways:
            return O_WRONLY | O_CREAT;
        case OpenMode::CreateNew:
            return O_WRONLY | O_CREAT | O_EXCL;
    }
    return O_RDONLY;
}

int Descriptor(FileHandle file) {
    return static_cast<int>(file);
}

// Calls a system call again when a signal interrupted it.
template <class Call>
auto Insist(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

// Whether a name matches wildcards: "*" any characters, "?" one, letter case ignored.
bool MatchesWildcards(std::string_view name, std::string_view pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern[0] == '*') {
        for (std::size_t skipped = 0; skipped <= name.size(); ++skipped)
            if (MatchesWildcards(name.substr(skipped), pattern.substr(1))) return true;
        return false;
    }
    if (name.empty() || (pattern[0] != '?' && LowerAscii(pattern[0]) != LowerAscii(name[0]))) return false;
    return MatchesWildcards(name.substr(1), pattern.substr(1));
}

// A name without an extension also matches as if it ended in ".".
bool NameMatches(const std::string& name, const std::string& pattern) {
    const bool dotless = name.find('.') == std::string::npos;
    return MatchesWildcards(name, pattern) || (dotless && MatchesWildcards(name + ".", pattern));
}

// The sorted names in a folder of the host, with what they name, that pass the test.
template <class Test>
std::vector<std::string> Names(const std::string& folder, Test passes) {
    const auto closeDirectory = [](DIR* directory) { closedir(directory); };
    const std::unique_ptr<DIR, decltype(closeDirectory)> directory(folder.empty() ? nullptr : opendir(folder.c_str()),
                                                                   closeDirectory);
    std::vector<std::string> names;
    if (!directory) return names;
    while (const dirent* entry = readdir(directory.get())) {
        const std::string name = entry->d_name;
        const auto info = StatusOf(folder + "/" + name);
        if (info && passes(name, *info)) names.push_back(name);
    }
    std::ranges::sort(names, LessIgnoringCase);
    return names;
}

}  // namespace

FileHandle OpenFile(const std::string& path, OpenMode mode) {
    const std::string hostPath = HostPath(path);
    if (hostPath.empty() || IsRefused(Call::Open)) return kNoFile;
    const Access access = mode == OpenMode::Read ? Access::Reading : Access::Writing;
    if (const auto info = StatusOf(hostPath); info && !MayBeOpened(*info, access)) return kNoFile;
    constexpr mode_t kReadableByAll = 0666;
    const int descriptor = open(hostPath.c_str(), OpenFlags(mode) | O_CLOEXEC, kReadableByAll);
    if (descriptor < 0) return kNoFile;
    struct stat info;
    if (fstat(descriptor, &info) != 0 || (mode == OpenMode::CreateAlways && ftruncate(descriptor, 0) != 0)) {
        close(descriptor);
        return kNoFile;
    }
    host::NoteOpened(descriptor, info, access);
    return descriptor;
}

std::optional<std::size_t> ReadFile(FileHandle file, char* data, std::size_t size) {
    if (IsRefused(Call::Read)) return std::nullopt;
    std::size_t total = 0;
    while (total < size) {
        const ssize_t count = Insist([&] { return read(Descriptor(file), data + total, size - total); });
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        total += static_cast<std::size_t>(count);
    }
    return total;
}

bool WriteFile(FileHandle file, std::string_view data) {
    const bool isRefused = IsRefused(Call::Write);
    if (isRefused) data = data.substr(0, data.size() / 2);
    while (!data.empty()) {
        const ssize_t count = Insist([&] { return write(Descriptor(file), data.data(), data.size()); });
        if (count <= 0) return false;
        data.remove_prefix(static_cast<std::size_t>(count));
    }
    return !isRefused;
}

bool SeekFile(FileHandle file, std::uint64_t offset) {
    return !IsRefused(Call::Seek) && lseek(Descriptor(file), static_cast<off_t>(offset), SEEK_SET) >= 0;
}

bool EndFileHere(FileHandle file) {
    if (IsRefused(Call::End)) return false;
    const off_t position = lseek(Descriptor(file), 0, SEEK_CUR);
    return position >= 0 && Insist([&] { return ftruncate(Descriptor(file), position); }) == 0;
}

bool FlushFile(FileHandle file) {
    return !IsRefused(Call::Flush) && Insist([&] { return fsync(Descriptor(file)); }) == 0;
}

std::optional<std::uint64_t> FileSize(FileHandle file) {
    struct stat info;
    if (IsRefused(Call::Size) || fstat(Descriptor(file), &info) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(info.st_size);
}

bool CloseFile(FileHandle file) {
    const bool isRefused = IsRefused(Call::Close);
    host::NoteClosed(Descriptor(file));
    return close(Descriptor(file)) == 0 && !isRefused;
}

std::optional<FileFacts> FactsOf(const std::string& path) {
    const auto info = StatusOf(HostPath(path));
    if (!info || !S_ISREG(info->st_mode)) return std::nullopt;
    return FileFacts{info->st_dev,
                     info->st_ino,
                     {static_cast<std::uint64_t>(info->st_size), WriteTimeOf(*info)},
                     (info->st_mode & S_IWUSR) == 0};
}

std::optional<FileStamp> StampOf(const std::string& path) {
    const auto info = StatusOf(HostPath(path));
    if (!info || !S_ISREG(info->st_mode)) return std::nullopt;
    return FileStamp{static_cast<std::uint64_t>(info->st_size), WriteTimeOf(*info)};
}

bool PathExists(const std::string& path) {
    return StatusOf(HostPath(path)).has_value();
}

bool DirectoryExists(const std::string& path) {
    const auto info = StatusOf(HostPath(path));
    return info && S_ISDIR(info->st_mode);
}

bool RemoveFile(const std::string& path) {
    const std::string hostPath = HostPath(path);
    const auto info = StatusOf(hostPath);
    if (info && (IsRefused(Call::Remove) || host::IsInUse(*info))) return false;
    return hostPath.empty() || unlink(hostPath.c_str()) == 0 || !PathExists(path);
}

bool RenameFile(const std::string& from, const std::string& to) {
    if (IsRefused(Call::Rename)) return false;
    const std::string source = HostPath(from);
    const std::string target = HostPath(to);
    const auto sourceInfo = StatusOf(source);
    if (!sourceInfo || !S_ISREG(sourceInfo->st_mode) || host::IsInUse(*sourceInfo) || target.empty()) return false;
    if (const auto info = StatusOf(target); info && (!MayBeOpened(*info, Access::Writing) || host::IsInUse(*info)))
        return false;
    return rename(source.c_str(), target.c_str()) == 0;
}

bool MakeDirectory(const std::string& path) {
    constexpr mode_t kUsableByAll = 0777;
    const std::string hostPath = HostPath(path);
    if (IsRefused(Call::MakeDirectory)) return false;
    return !hostPath.empty() && (mkdir(hostPath.c_str(), kUsableByAll) == 0 || DirectoryExists(path));
}

std::vector<std::string> FindFiles(const std::string& pattern) {
    const std::size_t nameStart = pattern.find_last_of("\\/:") + 1;
    const std::string folder = HostPath(nameStart == 0 ? "." : pattern.substr(0, nameStart));
    return Names(folder, [&](const std::string& name, const struct stat& info) {
        return S_ISREG(info.st_mode) && !name.starts_with('.') && NameMatches(name, pattern.substr(nameStart));
    });
}

std::vector<std::string> FindDirectories(const std::string& directory) {
    const bool isRoot = FullPath(directory).size() == std::string_view("C:\\").size();
    return Names(HostPath(directory), [isRoot](const std::string& name, const struct stat& info) {
        return S_ISDIR(info.st_mode) && (name == ".." ? !isRoot : !name.starts_with('.'));
    });
}

namespace {

DIR* Opened(std::intptr_t search) {
    return reinterpret_cast<DIR*>(search);
}

// Only what a link leads to has to be asked for.
void Add(const dirent& entry, int folder, DirectoryContents& contents) {
    struct stat info {};
    const bool isKnown = entry.d_type == DT_REG || entry.d_type == DT_DIR;
    if (!isKnown && fstatat(folder, entry.d_name, &info, 0) != 0) return;
    if (entry.d_type == DT_DIR || S_ISDIR(info.st_mode)) contents.directories.emplace_back(entry.d_name);
    if (entry.d_type == DT_REG || S_ISREG(info.st_mode)) contents.files.emplace_back(entry.d_name);
}

}  // namespace

DirectoryReader::DirectoryReader(const std::string& directory) {
    const std::string folder = HostPath(directory);
    search_ = reinterpret_cast<std::intptr_t>(folder.empty() ? nullptr : opendir(folder.c_str()));
    if (const auto info = StatusOf(folder)) identity_ = {info->st_dev, info->st_ino};
}

DirectoryReader::~DirectoryReader() {
    if (search_) closedir(Opened(search_));
}

DirectoryReader::State DirectoryReader::read(DirectoryContents& contents) {
    if (!search_) return State::Failed;
    for (int left = kPart; left > 0; --left) {
        const dirent* entry = readdir(Opened(search_));
        if (!entry) return State::Ended;
        if (entry->d_name[0] != '.') Add(*entry, dirfd(Opened(search_)), contents);
    }
    return State::Reading;
}

}  // namespace vexa::platform

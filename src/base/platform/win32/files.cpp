#include <windows.h>

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"

// Only functions that Windows 98 has and that work there are called here.

namespace vexa::platform {

namespace {

HANDLE Native(FileHandle file) {
    return reinterpret_cast<HANDLE>(file);
}

HANDLE Create(const std::string& path, OpenMode mode) {
    const char* name = path.c_str();
    constexpr DWORD kBoth = GENERIC_READ | GENERIC_WRITE;
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const auto create = [name](DWORD access, DWORD share, DWORD disposition) {
        return CreateFileA(name, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    };
    switch (mode) {
        case OpenMode::Read:
            return create(GENERIC_READ, kShared, OPEN_EXISTING);
        case OpenMode::ReadWrite:
            return create(kBoth, FILE_SHARE_READ, OPEN_EXISTING);
        case OpenMode::CreateNew:
            return create(GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
        case OpenMode::CreateAlways:
            break;
    }
    // A hidden file is refused to CREATE_ALWAYS unless its attributes are given, and would lose them.
    const HANDLE emptied = create(GENERIC_WRITE, FILE_SHARE_READ, TRUNCATE_EXISTING);
    if (emptied != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_NOT_FOUND) return emptied;
    return create(GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS);
}

DWORD Attributes(const std::string& path) {
    return GetFileAttributesA(path.c_str());
}

// Network drives refuse very large single transfers.
DWORD Portion(std::size_t size) {
    return static_cast<DWORD>(std::min<std::size_t>(size, 16 << 20));
}

// Looked at before every change: some servers, and a superuser's Wine, let a read-only file be written.
bool IsReadOnlyFile(const std::string& path) {
    constexpr DWORD kDirectoryOrReadOnly = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & kDirectoryOrReadOnly) == FILE_ATTRIBUTE_READONLY;
}

std::uint64_t Joined(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32 | low;
}

std::uint64_t TimeOf(const FILETIME& time) {
    return Joined(time.dwHighDateTime, time.dwLowDateTime);
}

// The lower half of a 64-bit quantity that the system gives in two; its failure value is also a valid half.
bool Failed(DWORD low) {
    return low == INVALID_FILE_SIZE && GetLastError() != NO_ERROR;
}

// A name beside the path that nothing bears yet; empty when there is none.
std::string UnusedNameBeside(const std::string& path) {
    constexpr int kAttempts = 100;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::string name = path + ".~~" + std::to_string(attempt);
        if (!PathExists(name)) return name;
    }
    return {};
}

// For systems that cannot replace in one step: the old file stays under another name until the new one has its place.
bool ReplaceInSteps(const std::string& from, const std::string& to) {
    if (Attributes(to) == INVALID_FILE_ATTRIBUTES) return MoveFileA(from.c_str(), to.c_str());
    if (DirectoryExists(to)) return false;
    const std::string aside = UnusedNameBeside(to);
    if (aside.empty() || !MoveFileA(to.c_str(), aside.c_str())) return false;
    if (!MoveFileA(from.c_str(), to.c_str())) {
        MoveFileA(aside.c_str(), to.c_str());
        return false;
    }
    DeleteFileA(aside.c_str());
    return true;
}

bool Replaced(const std::string& from, const std::string& to) {
    if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return true;
    return GetLastError() == ERROR_CALL_NOT_IMPLEMENTED && ReplaceInSteps(from, to);
}

// Another program that has a file open, to look for viruses in it or to copy it, is usually done with it in a moment.
constexpr int kTries = 10;
constexpr DWORD kPause = 20;  // milliseconds

bool IsHeldByAnother(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

constexpr DWORD kNotShown = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

// The sorted names that match a pattern and pass the test.
template <class Test>
std::vector<std::string> Names(const std::string& pattern, Test passes) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (passes(found)) names.emplace_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::ranges::sort(names, LessIgnoringCase);
    return names;
}

}  // namespace

FileHandle OpenFile(const std::string& path, OpenMode mode) {
    if (mode != OpenMode::Read && IsReadOnlyFile(path)) return kNoFile;
    const HANDLE file = Create(path, mode);
    if (file == INVALID_HANDLE_VALUE) return kNoFile;
    if (GetFileType(file) != FILE_TYPE_DISK) {  // a device, such as CON
        CloseHandle(file);
        return kNoFile;
    }
    return reinterpret_cast<FileHandle>(file);
}

std::optional<std::size_t> ReadFile(FileHandle file, char* data, std::size_t size) {
    std::size_t total = 0;
    while (total < size) {
        DWORD count = 0;
        if (!::ReadFile(Native(file), data + total, Portion(size - total), &count, nullptr)) return std::nullopt;
        if (count == 0) break;
        total += count;
    }
    return total;
}

bool WriteFile(FileHandle file, std::string_view data) {
    while (!data.empty()) {
        DWORD count = 0;
        if (!::WriteFile(Native(file), data.data(), Portion(data.size()), &count, nullptr) || count == 0) return false;
        data.remove_prefix(count);
    }
    return true;
}

bool SeekFile(FileHandle file, std::uint64_t offset) {
    LONG high = static_cast<LONG>(offset >> 32);
    SetLastError(NO_ERROR);
    return !Failed(SetFilePointer(Native(file), static_cast<LONG>(offset & 0xFFFFFFFF), &high, FILE_BEGIN));
}

bool EndFileHere(FileHandle file) {
    return SetEndOfFile(Native(file));
}

bool FlushFile(FileHandle file) {
    return FlushFileBuffers(Native(file));
}

std::optional<std::uint64_t> FileSize(FileHandle file) {
    DWORD high = 0;
    SetLastError(NO_ERROR);
    const DWORD low = GetFileSize(Native(file), &high);
    if (Failed(low)) return std::nullopt;
    return Joined(high, low);
}

bool CloseFile(FileHandle file) {
    return CloseHandle(Native(file));
}

std::optional<FileFacts> FactsOf(const std::string& path) {
    // Asking for no access at all is granted whoever has the file open.
    const HANDLE file = CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION info{};
    const bool isKnown = GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &info) &&
                         !(info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
    CloseHandle(file);
    if (!isKnown) return std::nullopt;
    return FileFacts{info.dwVolumeSerialNumber,
                     Joined(info.nFileIndexHigh, info.nFileIndexLow),
                     {Joined(info.nFileSizeHigh, info.nFileSizeLow), TimeOf(info.ftLastWriteTime)},
                     (info.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0};
}

std::optional<FileStamp> StampOf(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    const bool isFile = GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data) &&
                        !(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
    if (!isFile) return std::nullopt;
    return FileStamp{Joined(data.nFileSizeHigh, data.nFileSizeLow), TimeOf(data.ftLastWriteTime)};
}

bool PathExists(const std::string& path) {
    if (Attributes(path) != INVALID_FILE_ATTRIBUTES) return true;
    const DWORD error = GetLastError();
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool DirectoryExists(const std::string& path) {
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool RemoveFile(const std::string& path) {
    const bool readOnly = IsReadOnlyFile(path);
    const DWORD attributes = Attributes(path);
    if (readOnly) SetFileAttributesA(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (DeleteFileA(path.c_str()) || !PathExists(path)) return true;
    if (readOnly) SetFileAttributesA(path.c_str(), attributes);
    return false;
}

bool RenameFile(const std::string& from, const std::string& to) {
    if (Attributes(from) == INVALID_FILE_ATTRIBUTES || DirectoryExists(from) || DirectoryExists(to) ||
        IsReadOnlyFile(to))
        return false;
    for (int tries = 1; !Replaced(from, to); ++tries) {
        if (tries == kTries || !IsHeldByAnother(GetLastError())) return false;
        Sleep(kPause);
    }
    return true;
}

bool MakeDirectory(const std::string& path) {
    return CreateDirectoryA(path.c_str(), nullptr) || DirectoryExists(path);
}

std::vector<std::string> FindFiles(const std::string& pattern) {
    return Names(pattern, [](const WIN32_FIND_DATAA& found) {
        return !(found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | kNotShown));
    });
}

std::vector<std::string> FindDirectories(const std::string& directory) {
    const std::string pattern = directory + (directory.ends_with('\\') ? "*" : "\\*");
    return Names(pattern, [](const WIN32_FIND_DATAA& found) {
        const std::string_view name = found.cFileName;
        const DWORD attributes = found.dwFileAttributes;
        return (attributes & FILE_ATTRIBUTE_DIRECTORY) && (name == ".." || !(attributes & kNotShown)) && name != ".";
    });
}

namespace {

// Windows 98 opens no directories; there are no links to them there either.
DirectoryIdentity IdentityOf(const std::string& directory) {
    const HANDLE opened = CreateFileA(directory.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return {};
    BY_HANDLE_FILE_INFORMATION info{};
    const bool isKnown = GetFileInformationByHandle(opened, &info);
    CloseHandle(opened);
    if (!isKnown) return {};
    return {info.dwVolumeSerialNumber, Joined(info.nFileIndexHigh, info.nFileIndexLow)};
}

// The next entry; the first for a search that has not begun.
bool Next(const std::string& pattern, std::intptr_t& search, WIN32_FIND_DATAA& found) {
    if (search) return FindNextFileA(Native(search), &found);
    const HANDLE begun = FindFirstFileA(pattern.c_str(), &found);
    if (begun == INVALID_HANDLE_VALUE) return false;
    search = reinterpret_cast<std::intptr_t>(begun);
    return true;
}

void Add(const WIN32_FIND_DATAA& found, DirectoryContents& contents) {
    const std::string_view name = found.cFileName;
    if ((found.dwFileAttributes & kNotShown) || name == "." || name == "..") return;
    const bool isDirectory = found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    (isDirectory ? contents.directories : contents.files).emplace_back(name);
}

}  // namespace

DirectoryReader::DirectoryReader(const std::string& directory)
    : identity_(IdentityOf(directory)), pattern_(directory + (directory.ends_with('\\') ? "*" : "\\*")) {}

DirectoryReader::~DirectoryReader() {
    if (search_) FindClose(Native(search_));
}

// An empty drive has not even "." in it.
DirectoryReader::State DirectoryReader::read(DirectoryContents& contents) {
    WIN32_FIND_DATAA found;
    for (int left = kPart; left > 0; --left) {
        if (!Next(pattern_, search_, found))
            return search_ || GetLastError() == ERROR_FILE_NOT_FOUND ? State::Ended : State::Failed;
        Add(found, contents);
    }
    return State::Reading;
}

}  // namespace vexa::platform

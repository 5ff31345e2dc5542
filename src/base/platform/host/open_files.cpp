#include "base/platform/host/open_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

#include "base/platform/host/sandbox.h"

namespace vexa::platform::host {

namespace {

struct OpenFileEntry {
    int descriptor;
    dev_t device;
    ino_t number;
    Access access;

    bool isOf(const struct stat& file) const { return device == file.st_dev && number == file.st_ino; }
};

std::vector<OpenFileEntry>& OpenFiles() {
    static std::vector<OpenFileEntry> files;
    return files;
}

bool GoTogether(Access a, Access b) {
    if (a == Access::Locking || b == Access::Locking) return false;
    return a == Access::Reading || b == Access::Reading;
}

}  // namespace

bool AdmitsAccess(const struct stat& file, Access access) {
    return std::ranges::all_of(
        OpenFiles(), [&](const OpenFileEntry& entry) { return !entry.isOf(file) || GoTogether(entry.access, access); });
}

bool IsInUse(const struct stat& file) {
    return std::ranges::any_of(OpenFiles(), [&](const OpenFileEntry& entry) { return entry.isOf(file); });
}

void NoteOpened(int descriptor, const struct stat& file, Access access) {
    OpenFiles().push_back({descriptor, file.st_dev, file.st_ino, access});
}

void NoteClosed(int descriptor) {
    std::erase_if(OpenFiles(), [&](const OpenFileEntry& entry) { return entry.descriptor == descriptor; });
}

int LockFile(const std::string& path) {
    const int descriptor = open(HostPath(path).c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info;
    if (descriptor < 0 || fstat(descriptor, &info) != 0 || IsInUse(info)) {
        UnlockFile(descriptor);
        return -1;
    }
    NoteOpened(descriptor, info, Access::Locking);
    return descriptor;
}

void UnlockFile(int descriptor) {
    NoteClosed(descriptor);
    if (descriptor >= 0) close(descriptor);
}

}  // namespace vexa::platform::host

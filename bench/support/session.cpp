#include "support/session.h"

#include <malloc.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <filesystem>

#include "base/platform/host/sandbox.h"
#include "support/fail.h"

namespace vexa::bench {

namespace fs = std::filesystem;

namespace {

constexpr int kTypedLineLength = 80;

fs::path CorporaFolder() {
    const char* folder = std::getenv("VEXA_CORPORA");
    if (folder == nullptr) Fail("VEXA_CORPORA must name the folder of the corpora.");
    return fs::absolute(folder);
}

// The same also in a process that this one forks.
const fs::path& DiskRoot() {
    static const fs::path root = CorporaFolder().parent_path() / ("bench-disk-" + std::to_string(getpid()));
    return root;
}

}  // namespace

std::string CorpusPath(const std::string& name) {
    return (CorporaFolder() / name).string();
}

Disk::Disk() {
    fs::create_directories(DiskRoot() / "c");
    for (const char* name : {"c.txt", "wide.txt"}) {
        fs::copy_file(CorpusPath(name), HostPathOf(name), fs::copy_options::overwrite_existing);
    }
    platform::host::SetSandboxRoot(DiskRoot().string());
}

Disk::~Disk() {
    platform::host::SetSandboxRoot("");
    std::error_code ignored;
    fs::remove_all(DiskRoot(), ignored);
}

std::string HostPathOf(const std::string& name) {
    return (DiskRoot() / "c" / name).string();
}

void Session::load(const std::string& name) {
    document.setName("C:\\" + name);
    if (!document.load()) Fail("cannot load " + name);
}

void Session::type(char character) {
    KeyEvent event;
    event.character = static_cast<unsigned char>(character);
    view.key(event);
}

void Session::typeText(int characters) {
    KeyEvent enter;
    enter.key = kKeyEnter;
    for (int i = 1; i <= characters; ++i) {
        if (i % kTypedLineLength == 0) {
            view.key(enter);
        } else {
            type('x');
        }
    }
}

void KeepFreedMemory() {
    constexpr int kLargest = 1 << 25;  // the C library takes no larger threshold for mmap
    mallopt(M_MMAP_THRESHOLD, kLargest);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
}

double AllocatedBytes() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

}  // namespace vexa::bench

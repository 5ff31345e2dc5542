#include "shell/unsaved/recovery_names.h"

#include "base/directories.h"
#include "base/strings.h"

namespace vexa {

namespace {

using platform::OpenMode;

constexpr std::size_t kEnding = 3;  // characters
constexpr int kMostRuns = 1000;

std::string RunFile(const std::string& stem) {
    return stem + ".run";
}

// The full paths of the files whose names begin and end so.
std::vector<std::string> Files(const std::string& stem, const char* rest) {
    std::vector<std::string> files = platform::FindFiles(stem + rest);
    for (std::string& file : files)
        file.insert(0, DirectoryOf(stem));
    return files;
}

// Takes the file that tells of a run away when nothing else is left of it.
void EndRun(const std::string& stem, File& lock) {
    const bool isEmpty = Files(stem, "-*.vxr").empty();
    lock.close();
    if (isEmpty) platform::RemoveFile(RunFile(stem));
}

}  // namespace

RecoveryNames::~RecoveryNames() {
    if (lock_.isOpen()) EndRun(stem_, lock_);
}

bool RecoveryNames::begin() {
    for (int run = 1; !lock_.isOpen() && run <= kMostRuns; ++run) {
        stem_ = FillText("%s\\unsaved-%d", {directory_, std::to_string(run)});
        lock_ = File(RunFile(stem_), OpenMode::CreateNew);
        if (!lock_.isOpen() && !platform::PathExists(RunFile(stem_))) break;
    }
    return lock_.isOpen();
}

std::string RecoveryNames::next() {
    std::string name;
    while (begin() && (name.empty() || platform::PathExists(name)))
        name = FillText("%s-%d.vxr", {stem_, std::to_string(++last_)});
    return name;
}

std::vector<std::string> RecoveryNames::takeLeft() {
    std::vector<std::string> taken;
    for (const std::string& run : Files(directory_ + "\\unsaved-", "*.run"))
        takeFilesOf(run.substr(0, run.size() - kEnding - 1), taken);
    return taken;
}

// The file of a run that lives is open for writing, which lets no other writer in.
void RecoveryNames::takeFilesOf(const std::string& stem, std::vector<std::string>& taken) {
    File lock(RunFile(stem), OpenMode::ReadWrite);
    if (!lock.isOpen()) return;
    for (const std::string& unfinishedFile : Files(stem, "-*.vxr.~*"))
        platform::RemoveFile(unfinishedFile);
    for (const std::string& file : Files(stem, "-*.vxr")) {
        const std::string own = next();
        if (!own.empty() && platform::RenameFile(file, own)) taken.push_back(own);
    }
    EndRun(stem, lock);
}

}  // namespace vexa

#include "base/directories.h"

#include "base/platform.h"

namespace vexa {

namespace {

// Old path buffers held 260 characters; the program directory needs room for a subdirectory and a file name.
constexpr std::size_t kPathBuffer = 260;
constexpr std::size_t kChildRoom = 22;
constexpr const char* kImpossiblePath = "\\??Oops\\";

std::string MakeChild(const std::string& directory) {
    if (!platform::PathExists(directory)) platform::MakeDirectory(directory);
    return directory + "\\";
}

}  // namespace

std::string DirectoryOf(const std::string& path) {
    return path.substr(0, path.find_last_of("\\:") + 1);
}

Directories::Directories(const std::string& executable) {
    const std::string program = DirectoryOf(executable);
    if (program.size() + kChildRoom >= kPathBuffer) {
        help_ = program_ = backup_ = config_ = kImpossiblePath;
        return;
    }
    help_ = MakeChild(program + "vHelp");
    program_ = program + "\\";
    backup_ = MakeChild(program + "vbackup");
    config_ = MakeChild(program + "vConfig");
}

std::string Directories::GetDirectory(int selector) const {
    const auto withoutLast = [](const std::string& path) { return path.substr(0, path.size() - 1); };
    switch (selector) {
        case kHelpDirectory:
            return withoutLast(help_);
        case kProgramDirectory:
            return withoutLast(program_);
        case kBackupDirectory:
            return withoutLast(backup_);
        case kConfigDirectory:
            return withoutLast(config_);
        default:
            return {};
    }
}

}  // namespace vexa

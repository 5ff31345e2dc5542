// The directories beside the executable.
#pragma once

#include <string>

namespace vexa {

// The numbers by which a directory is asked for.
enum DirectorySelector { kHelpDirectory = 1, kProgramDirectory = 2, kBackupDirectory = 4, kConfigDirectory = 8 };

// The four paths, each ending in "\" (the program directory in two, so that GetDirectory gives it with one).
class Directories {
  public:
    // Makes the help, backup and configuration directories when they are missing; a failure is found out by whoever
    // writes there. A program directory too long for its children makes all four a path that cannot exist.
    explicit Directories(const std::string& executable);

    // The directory without its last character: help, backup and configuration without a "\" at the end, the program
    // directory with one. Empty for any other selector.
    std::string GetDirectory(int selector) const;

  private:
    std::string help_;
    std::string program_;
    std::string backup_;
    std::string config_;
};

// The directory part of a path, cut after its last "\" or ":".
std::string DirectoryOf(const std::string& path);

}  // namespace vexa

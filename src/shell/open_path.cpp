#include "shell/open_path.h"

#include "base/platform.h"

namespace vexa {
namespace {

bool HasDrive(const std::string& name) {
    return name.size() > 1 && name[1] == ':';
}

}  // namespace

std::string OpenPathOf(const std::string& name) {
    const bool isFull = HasDrive(name) && name.size() > 2;
    if (isFull) return name;
    const std::string file = name.substr(name.find_last_of('\\') + 1);
    const std::string directory = platform::CurrentDirectory();
    return directory.ends_with('\\') ? directory + file : directory + "\\" + file;
}

}  // namespace vexa

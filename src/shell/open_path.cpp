#include "shell/open_path.h"

#include "base/file_name.h"
#include "base/platform.h"

namespace vexa {
namespace {

std::string PathOf(const std::string& name) {
    if (IsFullName(name)) return name;
    const std::string file = name.substr(name.find_last_of('\\') + 1);
    return PrefixOf(platform::CurrentDirectory()) + file;
}

}  // namespace

std::string OpenPathOf(const std::string& name) {
    const std::string path = PathOf(name);
    const std::string usual = platform::LongPath(path);
    return usual.empty() ? path : usual;
}

}  // namespace vexa

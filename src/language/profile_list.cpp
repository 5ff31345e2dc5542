#include "language/profile_list.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"

namespace vexa {

std::string_view ExtensionOf(std::string_view fileName) {
    fileName.remove_prefix(fileName.find_last_of("\\/:") + 1);
    const std::size_t dot = fileName.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : fileName.substr(dot + 1);
}

const ExtensionProfile& ProfileList::profileFor(std::string_view fileName) {
    const std::string_view extension = ExtensionOf(fileName);
    if (extension.empty()) return builtIn_;
    if (const ExtensionProfile* profile = findLoaded(extension)) return *profile;
    if (const ExtensionProfile* profile = loadFrom(extension)) return *profile;
    // Profiles know only three characters of an extension, and so do the names of their files.
    if (const ExtensionProfile* profile = loadFrom(extension.substr(0, kExtensionLimit))) return *profile;
    return builtIn_;
}

std::string ProfileList::profilePath(std::string_view extension) const {
    return directory_ + "\\Vexa" + std::string(extension) + ".PRF";
}

const ExtensionProfile* ProfileList::findLoaded(std::string_view extension) const {
    const auto known = [](std::string_view name) { return name.substr(0, kExtensionLimit); };
    const auto serves = [&](const auto& loaded) {
        return loaded->profile.matches(extension) || EqualIgnoringCase(known(loaded->readFor), known(extension));
    };
    const auto found = std::ranges::find_if(loaded_, serves);
    return found == loaded_.end() ? nullptr : &(*found)->profile;
}

const ExtensionProfile* ProfileList::loadFrom(std::string_view extension) {
    const std::string path = profilePath(extension);
    if (!platform::PathExists(path)) return nullptr;
    auto loaded = std::make_unique<LoadedProfile>(LoadedProfile{std::string(extension), builtIn_});
    loaded->profile.read(path);
    return &loaded_.emplace_back(std::move(loaded))->profile;
}

}  // namespace vexa

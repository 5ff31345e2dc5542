#include "language/profile_list.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"
#include "language/quote_file.h"

namespace vexa {

namespace {

constexpr std::string_view kFilePrefix = "Vexa";
constexpr std::string_view kFileSuffix = ".PRF";

// What stands for the extension in the name of a profile file; empty in any other name. A search for files may find
// names with a longer suffix, too.
std::string_view ExtensionIn(std::string_view fileName) {
    const std::size_t around = kFilePrefix.size() + kFileSuffix.size();
    if (fileName.size() <= around) return {};
    if (!EqualIgnoringCase(fileName.substr(fileName.size() - kFileSuffix.size()), kFileSuffix)) return {};
    return fileName.substr(kFilePrefix.size(), fileName.size() - around);
}

}  // namespace

const Habits ProfileList::kGivenHabits;

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
    return pathOf(extension, kFileSuffix);
}

std::string ProfileList::pathOf(std::string_view extension, std::string_view suffix) const {
    return directory_ + "\\" + std::string(kFilePrefix) + std::string(extension) + std::string(suffix);
}

std::vector<std::string> ProfileList::extensions() const {
    std::vector<std::string> found;
    for (const std::string& name : platform::FindFiles(profilePath("*"))) {
        if (const std::string_view extension = ExtensionIn(name); !extension.empty()) found.emplace_back(extension);
    }
    std::ranges::sort(found, LessIgnoringCase);
    return found;
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
    if (habits_.languageQuotes) loaded->profile.setQuotes(ReadQuoteRules(pathOf(extension, kQuoteFileSuffix)));
    return &loaded_.emplace_back(std::move(loaded))->profile;
}

}  // namespace vexa

#include "base/config_store.h"

#include "base/platform.h"

namespace vexa {

namespace {

constexpr std::size_t kPathLimit = 255;

}  // namespace

std::string SettingsFileOf(const std::string& executable) {
    const std::size_t dot = executable.rfind('.');
    return dot == std::string::npos ? executable : executable.substr(0, dot) + ".INI";
}

ConfigStore::ConfigStore(const std::string& settingsFile) : path_(settingsFile.substr(0, kPathLimit)) {}

std::string ConfigStore::ReadString(const std::string& section, const std::string& key, const std::string& fallback,
                                    std::size_t size) const {
    return platform::ReadSetting(path_, section, key, fallback, size);
}

std::int32_t ConfigStore::ReadInt(const std::string& section, const std::string& key, std::int32_t fallback) const {
    return platform::ReadIntSetting(path_, section, key, fallback);
}

// A value with a line end in it would put lines of its own into the file, so it ends there.
void ConfigStore::WriteString(const std::string& section, const std::string& key, const std::string& value) {
    using namespace std::string_view_literals;
    platform::WriteSetting(path_, section, key, value.substr(0, value.find_first_of("\r\n\0"sv)));
}

void ConfigStore::WriteInt(const std::string& section, const std::string& key, std::int32_t value) {
    WriteString(section, key, std::to_string(value));
}

}  // namespace vexa

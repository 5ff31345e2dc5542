#include "base/config_store.h"

#include "base/ascii.h"
#include "base/file.h"
#include "base/platform.h"

namespace vexa {

namespace {

constexpr std::size_t kPathLimit = 255;
constexpr std::size_t kGuardAndTerminator = 3;
constexpr const char* kNoValue = "\n";  // what no value of the file can be

// Readers of a settings file take blanks around a value and one pair of quotes off; a further pair saves the text's
// own.
std::string Guarded(const std::string& text) {
    const bool quoted = text.size() > 1 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted || TrimBlanks(text) != text ? '"' + text + '"' : text;
}

}  // namespace

std::string SettingsFileOf(const std::string& executable) {
    const std::size_t dot = executable.rfind('.');
    return dot == std::string::npos ? executable : executable.substr(0, dot) + ".INI";
}

ConfigStore::ConfigStore(const std::string& settingsFile)
    : path_(settingsFile.substr(0, kPathLimit)), isReadable_(ReadKeptFile(path_, 0).has_value()) {}

std::string ConfigStore::ReadString(const std::string& section, const std::string& key, const std::string& fallback,
                                    std::size_t size) const {
    return platform::ReadSetting(path_, section, key, fallback, size);
}

std::int32_t ConfigStore::ReadInt(const std::string& section, const std::string& key, std::int32_t fallback) const {
    return platform::ReadIntSetting(path_, section, key, fallback);
}

// A value with a line end in it would put lines of its own into the file, so it ends there. One that the file has
// already is not written: each that is makes the system read and write the whole file.
void ConfigStore::WriteString(const std::string& section, const std::string& key, const std::string& value) {
    using namespace std::string_view_literals;
    const std::string kept = value.substr(0, value.find_first_of("\r\n\0"sv));
    const std::size_t oneMoreAndTerminator = kept.size() + 2;
    if (!isReadable_ || ReadString(section, key, kNoValue, oneMoreAndTerminator) == kept) return;
    platform::WriteSetting(path_, section, key, kept);
}

std::string ConfigStore::ReadGuarded(const std::string& section, const std::string& key, const std::string& fallback,
                                     std::size_t limit) const {
    return ReadString(section, key, fallback, limit + kGuardAndTerminator);
}

void ConfigStore::WriteGuarded(const std::string& section, const std::string& key, const std::string& value) {
    WriteString(section, key, Guarded(value));
}

void ConfigStore::WriteInt(const std::string& section, const std::string& key, std::int32_t value) {
    WriteString(section, key, std::to_string(value));
}

}  // namespace vexa

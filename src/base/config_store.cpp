#include "base/config_store.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kPathLimit = 255;
constexpr std::size_t kGuardAndTerminator = 3;
constexpr const char* kNoValue = "\n";  // what no value of the file can be

// A value with a line end in it would put lines of its own into the file.
std::string FirstLineOf(const std::string& value) {
    return value.substr(0, value.find_first_of("\r\n\0"sv));
}

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
    : path_(settingsFile.substr(0, kPathLimit)), isReadable_(platform::ReadSetting(path_, "", "", "", 1).has_value()) {}

// What is read can be written: it ends where that would end, whether the system goes on after a CR or a byte 0 or not.
std::string ConfigStore::ReadString(const std::string& section, const std::string& key, const std::string& fallback,
                                    std::size_t size) const {
    const auto value = isReadable_ ? platform::ReadSetting(path_, section, key, fallback, size) : std::nullopt;
    if (!value) unreadSections_.push_back(section);
    return FirstLineOf(value.value_or(fallback));
}

std::int32_t ConfigStore::ReadInt(const std::string& section, const std::string& key, std::int32_t fallback) const {
    const auto value = isReadable_ ? platform::ReadIntSetting(path_, section, key, fallback) : std::nullopt;
    if (!value) unreadSections_.push_back(section);
    return value.value_or(fallback);
}

// Of two values for one key the last counts.
void ConfigStore::WriteString(const std::string& section, const std::string& key, const std::string& value) {
    const Batch batch(*this);
    const std::string kept = FirstLineOf(value);
    for (platform::Setting& other : collected_) {
        if (other.key == key && other.section == section) {
            other.value = kept;
            return;
        }
    }
    if (isToBeWritten(section, key, kept)) collected_.push_back({section, key, kept});
}

// A value that the file has already is not: each that is written makes the system read and write the whole file.
bool ConfigStore::isToBeWritten(const std::string& section, const std::string& key, const std::string& value) const {
    const std::size_t oneMoreAndTerminator = value.size() + 2;
    return isReadable_ && std::ranges::find(unreadSections_, section) == unreadSections_.end() &&
           platform::ReadSetting(path_, section, key, kNoValue, oneMoreAndTerminator) != value;
}

ConfigStore::Batch::~Batch() {
    if (--store_.batches_ > 0 || store_.collected_.empty()) return;
    platform::WriteSettings(store_.path_, store_.collected_);
    store_.collected_.clear();
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

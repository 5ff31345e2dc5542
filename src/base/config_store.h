// The settings file: an INI file beside the executable and named like it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace vexa {

// The settings file of an executable: its path with everything from the last "." replaced by ".INI"; unchanged when
// it has no ".".
std::string SettingsFileOf(const std::string& executable);

// Named values in sections of the settings file. A missing file or key gives the caller's default; a file that cannot
// be written silently keeps its old contents, and so does one that could not be read at the start, as the defaults in
// its stead are not to be written over it.
class ConfigStore {
  public:
    // Keeps at most 255 characters of the path.
    explicit ConfigStore(const std::string& settingsFile);

    // size counts the terminator, as the buffers of old settings did: at most size - 1 characters come back.
    std::string ReadString(const std::string& section, const std::string& key, const std::string& fallback,
                           std::size_t size) const;
    // Text that is no number gives 0.
    std::int32_t ReadInt(const std::string& section, const std::string& key, std::int32_t fallback) const;
    void WriteString(const std::string& section, const std::string& key, const std::string& value);
    // For texts that may begin or end with blanks or quotes: what is written comes back as it was, up to that many
    // characters.
    std::string ReadGuarded(const std::string& section, const std::string& key, const std::string& fallback,
                            std::size_t limit) const;
    void WriteGuarded(const std::string& section, const std::string& key, const std::string& value);
    void WriteInt(const std::string& section, const std::string& key, std::int32_t value);

    const std::string& path() const { return path_; }

  private:
    std::string path_;
    bool isReadable_;
};

}  // namespace vexa

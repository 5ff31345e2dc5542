// The settings file: an INI file beside the executable and named like it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/platform.h"

namespace vexa {

// The settings file of an executable: its path with everything from the last "." replaced by ".INI"; unchanged when
// it has no ".".
std::string SettingsFileOf(const std::string& executable);

// Named values in sections of the settings file. A missing file or key gives the caller's default; a file that cannot
// be written silently keeps its old contents. So does, until the program ends, a section of which a value could not be
// read, as the default in its stead is not to be written over it; and the whole file if that was so at the start.
class ConfigStore {
  public:
    // While one lives, what is written is collected, and reaches the file in one step with the end of the outermost:
    // values that belong together are old or new together. Reading gives the old ones meanwhile.
    class Batch {
      public:
        explicit Batch(ConfigStore& store) : store_(store) { ++store_.batches_; }
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

      private:
        ConfigStore& store_;
    };

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
    bool isToBeWritten(const std::string& section, const std::string& key, const std::string& value) const;

    std::string path_;
    bool isReadable_;
    mutable std::vector<std::string> unreadSections_;
    std::vector<platform::Setting> collected_;
    int batches_ = 0;
};

}  // namespace vexa

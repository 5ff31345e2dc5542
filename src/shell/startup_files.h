// The files that were open at the last exit, kept in section "History" of the settings file and opened at the next
// start.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "base/callback.h"
#include "base/config_store.h"

namespace vexa {

// Three slots: with more documents open at exit, later closes take the places of earlier ones in turn.
class StartupFiles {
  public:
    static constexpr std::size_t kSlots = 3;

    explicit StartupFiles(ConfigStore& store) : store_(store) {}

    // Notes, at once in the settings file, a document that is closed while the program ends. The line is that of its
    // caret, counted from 1.
    void RecordStartupFile(const std::string& path, std::int32_t line);

    // Opens the files, the last slot first, when the user wants files restored; each is forgotten as soon as it has
    // been opened, so that one that cannot be is not tried for ever. Otherwise they stay as they are.
    using Open = Callback<void(const std::string& path, std::int32_t line)>;
    void RestoreStartupFiles(bool restoreFiles, const Open& open);

    // The files as they are now come back with takeBack(), should the end that they are recorded for be called off.
    void keep();
    void takeBack();

  private:
    using Slots = std::array<std::string, kSlots>;
    struct Kept {
        Slots values;  // as the settings have them
        Slots paths;
        std::size_t slot;
    };

    ConfigStore& store_;
    Slots paths_;
    std::size_t slot_ = 0;
    std::optional<Kept> kept_;
};

}  // namespace vexa

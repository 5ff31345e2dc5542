// The font of the edit view as the settings file describes it.
#pragma once

#include <cstdint>
#include <string>

#include "base/config_store.h"

namespace vexa {

inline constexpr std::size_t kFaceLimit = 31;  // what the system takes of a face name

struct FontDetails {
    // Pixels at 96 dots an inch, below 0 for the height of the characters without the room above them; the widths of
    // the font itself for 0.
    std::int32_t Height = -13;
    std::int32_t Width = 0;
    std::int32_t Weight = 400;  // 100 to 900; 400 is normal, 700 bold
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    std::int32_t Family = 0x30;  // the system's number for faces of constant stroke width
    // Height and width as the user chose them, while a zoom has changed them; 0 for the height while none has.
    std::int32_t HeightBeforeZoom = 0;
    std::int32_t WidthBeforeZoom = 0;
    std::string Face = "Courier";

    // Takes the section "Font Details". Sizes beyond what can be read on any screen become the default ones.
    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;
    // Larger by a number of steps, or smaller below 0, within what can be read.
    void zoom(std::int32_t steps);
    // Back to the size that was chosen.
    void resetZoom();
};

}  // namespace vexa

// How documents are printed, as the user has set it.
#pragma once

#include <cstdint>

#include "base/config_store.h"

namespace vexa {

// Lengths on paper, in hundredths of a millimetre from the sheet's edges.
struct PrintMargins {
    std::int32_t left = 2000;
    std::int32_t top = 1500;
    std::int32_t right = 1500;
    std::int32_t bottom = 1500;

    bool operator==(const PrintMargins&) const = default;
};

struct PrintOptions {
    static constexpr std::int32_t kWidestMargin = 10160;  // hundredths of a millimetre: four inches

    bool colours = true;
    bool lineNumbers = false;
    bool header = true;
    PrintMargins margins;

    // From and to section "Print". A margin out of range becomes the nearest one within.
    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;

    bool operator==(const PrintOptions&) const = default;
};

}  // namespace vexa

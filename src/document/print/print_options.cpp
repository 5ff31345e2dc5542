#include "document/print/print_options.h"

#include <algorithm>

#include "base/switch_rows.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Print";

constexpr SwitchRow<PrintOptions> kSwitchKeys[] = {
    {"Colors", &PrintOptions::colours},
    {"LineNumbers", &PrintOptions::lineNumbers},
    {"Header", &PrintOptions::header},
};

struct MarginKey {
    const char* key;
    std::int32_t PrintMargins::*value;
};
constexpr MarginKey kMarginKeys[] = {
    {"LeftMargin", &PrintMargins::left},
    {"TopMargin", &PrintMargins::top},
    {"RightMargin", &PrintMargins::right},
    {"BottomMargin", &PrintMargins::bottom},
};

}  // namespace

void PrintOptions::Load(const ConfigStore& store) {
    LoadSwitches(store, kSection, kSwitchKeys, *this);
    for (const MarginKey& row : kMarginKeys) {
        const std::int32_t kept = store.ReadInt(kSection, row.key, margins.*row.value);
        margins.*row.value = std::clamp(kept, 0, kWidestMargin);
    }
}

void PrintOptions::Save(ConfigStore& store) const {
    SaveSwitches(store, kSection, kSwitchKeys, *this);
    for (const MarginKey& row : kMarginKeys)
        store.WriteInt(kSection, row.key, margins.*row.value);
}

}  // namespace vexa

#include "document/print/print_options.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr const char* kSection = "Print";

struct SwitchKey {
    const char* key;
    bool PrintOptions::*value;
};
constexpr SwitchKey kSwitchKeys[] = {
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
    for (const SwitchKey& row : kSwitchKeys)
        this->*row.value = store.ReadInt(kSection, row.key, this->*row.value ? 1 : 0) != 0;
    for (const MarginKey& row : kMarginKeys) {
        const std::int32_t kept = store.ReadInt(kSection, row.key, margins.*row.value);
        margins.*row.value = std::clamp(kept, 0, kWidestMargin);
    }
}

void PrintOptions::Save(ConfigStore& store) const {
    for (const SwitchKey& row : kSwitchKeys)
        store.WriteInt(kSection, row.key, this->*row.value ? 1 : 0);
    for (const MarginKey& row : kMarginKeys)
        store.WriteInt(kSection, row.key, margins.*row.value);
}

}  // namespace vexa

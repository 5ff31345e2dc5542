// Switches of a record that are kept in one section of the settings, each as 0 or 1.
#pragma once

#include <cstddef>

#include "base/config_store.h"

namespace vexa {

template <class Record>
struct SwitchRow {
    const char* key;
    bool Record::*value;
};

// A missing value leaves the switch as it is; one that is no number switches it off.
template <class Record, std::size_t count>
void LoadSwitches(const ConfigStore& store, const char* section, const SwitchRow<Record> (&rows)[count],
                  Record& record) {
    for (const SwitchRow<Record>& row : rows)
        record.*row.value = store.ReadInt(section, row.key, record.*row.value ? 1 : 0) != 0;
}

template <class Record, std::size_t count>
void SaveSwitches(ConfigStore& store, const char* section, const SwitchRow<Record> (&rows)[count],
                  const Record& record) {
    for (const SwitchRow<Record>& row : rows)
        store.WriteInt(section, row.key, record.*row.value ? 1 : 0);
}

}  // namespace vexa

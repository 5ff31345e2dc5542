#include "base/habits.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Extended";

struct HabitKey {
    const char* key;
    bool Habits::*habit;
};

constexpr HabitKey kHabitKeys[] = {
    {"KeepFiles", &Habits::keepFiles},           {"LargeFiles", &Habits::largeFiles},
    {"LargeClipboard", &Habits::largeClipboard}, {"WholeSession", &Habits::wholeSession},
    {"LanguageQuotes", &Habits::languageQuotes}, {"ReplacementGroups", &Habits::replacementGroups},
    {"SearchAround", &Habits::searchAround},     {"KeepMarking", &Habits::keepMarking},
};

}  // namespace

void Habits::Load(const ConfigStore& store) {
    for (const HabitKey& row : kHabitKeys)
        this->*row.habit = store.ReadInt(kSection, row.key, 0) != 0;
}

void Habits::Save(ConfigStore& store) const {
    for (const HabitKey& row : kHabitKeys)
        store.WriteInt(kSection, row.key, this->*row.habit ? 1 : 0);
}

}  // namespace vexa

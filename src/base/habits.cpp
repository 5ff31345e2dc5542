#include "base/habits.h"

#include "base/switch_rows.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Extended";

constexpr SwitchRow<Habits> kHabitKeys[] = {
    {"KeepFiles", &Habits::keepFiles},           {"LargeFiles", &Habits::largeFiles},
    {"LargeClipboard", &Habits::largeClipboard}, {"WholeSession", &Habits::wholeSession},
    {"LanguageQuotes", &Habits::languageQuotes}, {"ReplacementGroups", &Habits::replacementGroups},
    {"SearchAround", &Habits::searchAround},     {"KeepMarking", &Habits::keepMarking},
};

}  // namespace

void Habits::Load(const ConfigStore& store) {
    *this = {};
    LoadSwitches(store, kSection, kHabitKeys, *this);
}

void Habits::Save(ConfigStore& store) const {
    SaveSwitches(store, kSection, kHabitKeys, *this);
}

}  // namespace vexa

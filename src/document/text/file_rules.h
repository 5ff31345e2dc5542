// By which rules a document is read from its file and written back.
#pragma once

#include "base/habits.h"
#include "base/limits.h"

namespace vexa {

// Chosen when a document is read or made, and kept by it for its life: the habits may change meanwhile.
struct FileRules {
    FileRules() = default;
    explicit FileRules(const Habits& habits) : keepsLineEnds(habits.keepFiles) {
        if (habits.largeFiles) limits = kWideLimits;
        // What is split at reading could not be written as it was.
        if (keepsLineEnds) limits.lineRead = kAnyLength;
    }

    bool keepsLineEnds = false;  // each line ends as it was read, the last one too; else all do as the options say
    Limits limits;
};

}  // namespace vexa

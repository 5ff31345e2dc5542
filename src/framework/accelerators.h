// The keys that start commands.
#pragma once

#include <windows.h>

#include <vector>

#include "framework/handle.h"

namespace vexa {

// A virtual key with exactly these modifiers.
struct AcceleratorKey {
    WORD key = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;
    WORD command = 0;
};

// Of two equal keys the first one counts.
AcceleratorHandle MakeAccelerators(const std::vector<AcceleratorKey>& keys);

}  // namespace vexa

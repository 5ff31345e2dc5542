// What the platform promises about work in the background, held to on every platform.
#include <gtest/gtest.h>

#include <set>

#include "base/platform.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vexa::platform {
namespace {

std::uint32_t PresentThread() {
#ifdef _WIN32
    return GetCurrentThreadId();
#else
    return 0;
#endif
}

struct Seen {
    int done = 0;
    std::set<std::uint32_t> threads;
};

// Takes so long that whoever does not wait for it goes on before its end.
void TakeLong(void* context) noexcept {
    Pause(20);
    Seen& seen = *static_cast<Seen*>(context);
    ++seen.done;
    seen.threads.insert(PresentThread());
}

TEST(PlatformBackground, WhatIsBegunIsDoneOnceEachTimeInOneThread) {
    Seen seen;
    BackgroundWork work(&TakeLong, &seen);
    for (int begun = 1; begun <= 3; ++begun) {
        work.begin();
        while (work.isRunning())
            Pause(1);
        EXPECT_EQ(seen.done, begun);
    }
    EXPECT_EQ(seen.threads.size(), 1u);
}

TEST(PlatformBackground, TheEndOfItsObjectWaitsForTheWork) {
    Seen seen;
    {
        const BackgroundWork none(&TakeLong, &seen);
        BackgroundWork work(&TakeLong, &seen);
        work.begin();
    }
    EXPECT_EQ(seen.done, 1);
}

}  // namespace
}  // namespace vexa::platform

#include "shell/out_of_memory.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace vexa {
namespace {

int g_shown = 0;
int g_previousCalls = 0;

void Show(const char* text, const char* caption) {
    EXPECT_STREQ(text, "The system has run out of memory, please exit the system!");
    EXPECT_STREQ(caption, "No Memory");
    ++g_shown;
    // Also when showing the box runs out of memory.
    if (g_shown == 1) {
        EXPECT_THROW(std::get_new_handler()(), std::bad_alloc);
    }
}

TEST(OutOfMemory, IsToldOnceAndEndsAsItDidBefore) {
    std::new_handler const outer = std::set_new_handler(nullptr);
    {
        const OutOfMemoryHandler handler(&Show);
        EXPECT_THROW(std::get_new_handler()(), std::bad_alloc);
        EXPECT_EQ(g_shown, 1);
        EXPECT_THROW(std::get_new_handler()(), std::bad_alloc);
        EXPECT_EQ(g_shown, 2) << "at the next failure again";
    }
    EXPECT_EQ(std::get_new_handler(), nullptr);
    std::set_new_handler([] { ++g_previousCalls; });
    {
        const OutOfMemoryHandler handler(&Show);
        std::get_new_handler()();
        EXPECT_EQ(g_shown, 3);
        EXPECT_EQ(g_previousCalls, 1);
    }
    std::set_new_handler(outer);
}

}  // namespace
}  // namespace vexa

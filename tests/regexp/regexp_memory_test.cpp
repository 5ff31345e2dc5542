// When memory runs out, nothing matches and that is told. A program of its own, because it replaces the allocation.
#include <gtest/gtest.h>

#include <cstring>

#include "failing_allocation.h"
#include "regexp/regexp.h"
#include "regexp/regexp_plan.h"

namespace vexa::test {
namespace {

TEST(RegExpMemory, MayRunOut) {
    static int outOfSpace = 0;
    const auto count = [](const char* message) { outOfSpace += std::strcmp(message, "out of space") == 0 ? 1 : 0; };
    const RegExpErrorHook hook = SetRegExpErrorHook(count);
    const std::string line = std::string(5000, 'x') + "y";
    int failures = 0;
    bool done = false;
    while (!done && failures < 1000) {
        outOfSpace = 0;
        AllowAllocations(failures);
        const auto program = RegExp::Compile("(x|xx|[a-z]z)+y");
        done = program != nullptr;
        for (int i = 0; done && i <= regexp::Plan::kExecutionsBeforeHints; ++i)
            done = RegExp::Execute(program.get(), line.c_str());
        AllowAllocations(-1);
        EXPECT_EQ(outOfSpace, done ? 0 : 1);
        if (!done) ++failures;
        // What failed once works when there is memory again.
        EXPECT_TRUE(program == nullptr || RegExp::Execute(program.get(), line.c_str()));
    }
    EXPECT_TRUE(done);
    EXPECT_GT(failures, 10);
    SetRegExpErrorHook(hook);
}

}  // namespace
}  // namespace vexa::test

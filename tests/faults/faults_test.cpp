// Whatever call of the disk fails while a file is written, the file has its old contents or its new ones.
#include <gtest/gtest.h>

#include <algorithm>

#include "faults/writing_operations.h"

namespace vexa::test {
namespace {

// The more calls an operation has, the nearer lie those that fail together. A failure has calls after it that a success
// has not.
int LongestPair(int calls) {
    constexpr int kLongest = 30;
    return std::min(40'000 / (calls * calls), kLongest);
}

class Faults : public testing::TestWithParam<WritingOperation> {
  protected:
    // The calls that were made.
    int run(const FaultPlan& plan) {
        FaultScene scene(GetParam());
        SCOPED_TRACE(plan.text());
        scene.run(plan, expected_);
        if (!expected_) expected_ = scene.files();
        return CountedFaults().calls;
    }

  private:
    std::optional<Files> expected_;  // what the operation leaves without faults
};

TEST_P(Faults, LeaveOldContentsOrNewOnes) {
    const int calls = run({});
    ASSERT_GT(calls, 0) << "it does not write through the platform's functions";
    for (int first = 0; first < calls && !HasFailure(); ++first) {
        run({{first}});
        run({{}, first});
        for (int second = first + 1; second <= first + LongestPair(calls) && !HasFailure(); ++second) {
            if (run({{first, second}}) <= second) break;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Faults, testing::ValuesIn(WritingOperations()), [](const auto& tested) {
    std::string name = tested.param.name;
    std::ranges::replace(name, ' ', '_');
    std::ranges::replace(name, '-', '_');
    return name;
});

}  // namespace
}  // namespace vexa::test

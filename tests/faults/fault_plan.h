// Which calls of the disk fail, counted from the moment at which a plan is set.
#pragma once

#include <set>
#include <string>

namespace vexa::test {

// Positions in the order of the calls.
struct FaultPlan {
    std::set<int> calls;  // these fail,
    int from = -1;        // and from this one on all do; -1 for none

    std::string text() const;
};

void SetFaultPlan(const FaultPlan& plan);
const FaultPlan& PresentFaultPlan();
void ClearFaultPlan();

// What has come of the plan that was set last.
struct FaultCount {
    int calls = 0;    // made while it was set
    int refused = 0;  // of them
    bool refusedRemoval = false;
};
const FaultCount& CountedFaults();

}  // namespace vexa::test

#include "faults/fault_plan.h"

#include "base/platform/host/faults.h"

namespace vexa::test {

namespace {

FaultPlan g_plan;
FaultCount g_count;

bool Strike(platform::host::Call call) {
    const int position = g_count.calls++;
    const bool isRefused = g_plan.calls.contains(position) || (g_plan.from >= 0 && position >= g_plan.from);
    if (!isRefused) return false;
    ++g_count.refused;
    g_count.refusedRemoval |= call == platform::host::Call::Remove;
    return true;
}

}  // namespace

std::string FaultPlan::text() const {
    std::string text = "failing calls:";
    for (const int call : calls)
        text += " " + std::to_string(call);
    if (from >= 0) text += " all from " + std::to_string(from);
    return text;
}

void SetFaultPlan(const FaultPlan& plan) {
    g_plan = plan;
    g_count = FaultCount();
    platform::host::SetCallFault(Strike);
}

const FaultPlan& PresentFaultPlan() {
    return g_plan;
}

void ClearFaultPlan() {
    platform::host::SetCallFault(nullptr);
}

const FaultCount& CountedFaults() {
    return g_count;
}

}  // namespace vexa::test

#include "base/platform/host/faults.h"

namespace vexa::platform::host {

namespace {

CallFault g_fault = nullptr;

}  // namespace

void SetCallFault(CallFault fault) {
    g_fault = fault;
}

bool IsRefused(Call call) {
    return g_fault && g_fault(call);
}

}  // namespace vexa::platform::host

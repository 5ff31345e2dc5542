// Lets memory run out, and counts what is in use, in the test program alone.
#pragma once

namespace vexa::test {

// From now on so many allocations succeed and all others fail; negative: none fails.
void AllowAllocations(long count);

// How many pieces of memory have been allocated and not been freed yet.
long AllocationsAlive();

}  // namespace vexa::test

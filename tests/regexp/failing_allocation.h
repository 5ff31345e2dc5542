// Lets memory run out, in the test program alone.
#pragma once

namespace vexa::test {

// From now on so many allocations succeed and all others fail; negative: none fails.
void AllowAllocations(long count);

}  // namespace vexa::test

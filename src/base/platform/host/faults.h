// Lets tests refuse calls of the disk, as a failing or full one would.
#pragma once

namespace vexa::platform::host {

enum class Call { Open, Read, Write, Seek, End, Flush, Size, Close, Rename, Remove, MakeDirectory };

// Asked before each call; true refuses it. A refused write takes the first half of what it is given, and a refused
// close closes. None by default.
using CallFault = bool (*)(Call call);
void SetCallFault(CallFault fault);
bool IsRefused(Call call);

}  // namespace vexa::platform::host

#include "framework/accelerators.h"

namespace vexa {

AcceleratorHandle MakeAccelerators(const std::vector<AcceleratorKey>& keys) {
    std::vector<ACCEL> entries;
    for (const AcceleratorKey& key : keys) {
        const int modifiers = (key.shift ? FSHIFT : 0) | (key.control ? FCONTROL : 0) | (key.alt ? FALT : 0);
        entries.push_back({static_cast<BYTE>(FVIRTKEY | modifiers), key.key, key.command});
    }
    return AcceleratorHandle(CreateAcceleratorTableA(entries.data(), static_cast<int>(entries.size())));
}

}  // namespace vexa

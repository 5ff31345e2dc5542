#include "document/text/memory_room.h"

#include <algorithm>
#include <cstdlib>

namespace vexa {

// Each piece points to the one before it.
bool HasRoomFor(std::uint64_t bytes, std::size_t piece) {
    piece = std::max(piece, sizeof(void*));
    void* last = nullptr;
    bool hasRoom = true;
    for (std::uint64_t got = 0; hasRoom && got < bytes; got += piece) {
        void* const fresh = std::malloc(piece);
        hasRoom = fresh != nullptr;
        if (!hasRoom) break;
        *static_cast<void**>(fresh) = last;
        last = fresh;
    }
    while (last) {
        void* const before = *static_cast<void**>(last);
        std::free(last);
        last = before;
    }
    return hasRoom;
}

}  // namespace vexa

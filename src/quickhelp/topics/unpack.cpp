#include "quickhelp/topics/unpack.h"

#include <algorithm>

#include "quickhelp/topics/byte_reader.h"

namespace vexa::topics {
namespace {

// Source and copy may overlap, which repeats the bytes between them. False for a copy from before the start.
bool CopyBack(std::string& out, unsigned word, std::size_t limit) {
    const std::size_t distance = (word & 0x0FFF) + 1;
    const std::size_t length = (word >> 12) + 3;
    if (distance > out.size()) return false;
    for (std::size_t i = 0; i < length && out.size() < limit; ++i)
        out.push_back(out[out.size() - distance]);
    return true;
}

// One flag byte and what its eight bits stand for. False at the end of the input, at the limit or at a fault.
bool UnpackGroup(ByteReader& in, std::string& out, std::size_t limit) {
    unsigned flags = in.u8();
    for (int bit = 0; bit < 8; ++bit, flags >>= 1) {
        const bool isCopy = (flags & 1) != 0;
        if (in.left() < (isCopy ? 2U : 1U) || out.size() >= limit) return false;
        if (!isCopy) {
            out.push_back(static_cast<char>(in.u8()));
        } else if (!CopyBack(out, in.u16(), limit)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void UnpackLz77(std::string_view packed, std::size_t limit, std::string& out) {
    out.clear();
    ByteReader in(packed);
    while (in.left() > 0 && UnpackGroup(in, out, limit)) {
    }
}

std::string UnpackLz77(std::string_view packed, std::size_t limit) {
    std::string out;
    UnpackLz77(packed, limit, out);
    return out;
}

std::string UnpackRuns(std::string_view packed, std::size_t limit) {
    std::string out;
    ByteReader in(packed);
    while (in.left() > 1 && out.size() < limit) {
        const std::size_t count = in.u8();
        const std::size_t room = limit - out.size();
        if (count & 0x80) {
            const std::size_t taken = std::min({count & 0x7F, in.left(), room});
            out.append(in.bytes(static_cast<std::int64_t>(taken)));
        } else {
            out.append(std::min(count, room), static_cast<char>(in.u8()));
        }
    }
    return out;
}

}  // namespace vexa::topics

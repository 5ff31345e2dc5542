#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

namespace {

constexpr int kDeletions = 6;

}  // namespace

bool AddGlobalMarker(const std::string& name) {
    return GlobalAddAtomA(name.c_str()) != 0;
}

bool GlobalMarkerExists(const std::string& name) {
    return GlobalFindAtomA(name.c_str()) != 0;
}

void DeleteGlobalMarker(const std::string& name) {
    ATOM atom = GlobalFindAtomA(name.c_str());
    for (int n = 0; n < kDeletions && atom != 0; ++n) {
        GlobalDeleteAtom(atom);
        atom = GlobalFindAtomA(name.c_str());
    }
}

std::uint32_t RegisterBroadcast(const std::string& name) {
    return RegisterWindowMessageA(name.c_str());
}

bool PostBroadcast(std::uint32_t message) {
    return message != 0 && PostMessageA(HWND_BROADCAST, message, 0, 0);
}

// The path comes in the OEM character set, on some systems in the ANSI one; it is that when it is the path that the
// functions of the ANSI set make of the text.
std::string ParseFileName(const std::string& text) {
    const std::string full = FullPath(text);
    OFSTRUCT parsed{};
    if (full.empty() || ::OpenFile(text.c_str(), &parsed, OF_PARSE) == HFILE_ERROR) return {};
    if (full != parsed.szPathName) OemToCharA(parsed.szPathName, parsed.szPathName);
    return parsed.szPathName;
}

// Not by the run-time library, whose seconds end in 2038 in a 32-bit program.
std::int64_t CurrentSeconds() {
    constexpr std::int64_t kTicksASecond = 10'000'000;
    constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    const std::int64_t ticks = std::int64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
    return ticks / kTicksASecond - kFrom1601To1970;
}

}  // namespace vexa::platform

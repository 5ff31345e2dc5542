#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

SystemTurn::SystemTurn(const std::string& name, std::uint32_t patience) {
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, name.c_str());
    mutex_ = reinterpret_cast<std::intptr_t>(mutex);
    const DWORD answer = mutex ? WaitForSingleObject(mutex, patience) : WAIT_FAILED;
    isMine_ = answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
}

SystemTurn::~SystemTurn() {
    const auto mutex = reinterpret_cast<HANDLE>(mutex_);
    if (isMine_) ReleaseMutex(mutex);
    if (mutex) CloseHandle(mutex);
}

// The number goes with the last program that has it open, so the handle stays open as long as the object.
SharedNumber::SharedNumber(const std::string& name) {
    const HANDLE mapping =
        CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(std::uint32_t), name.c_str());
    if (mapping) number_ = static_cast<std::uint32_t*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, 0));
    mapping_ = reinterpret_cast<std::intptr_t>(mapping);
}

SharedNumber::~SharedNumber() {
    if (number_) UnmapViewOfFile(number_);
    if (mapping_) CloseHandle(reinterpret_cast<HANDLE>(mapping_));
}

std::uint32_t SharedNumber::get() const {
    return number_ ? *number_ : 0;
}

void SharedNumber::set(std::uint32_t value) {
    if (number_) *number_ = value;
}

std::uint32_t Ticks() {
    return GetTickCount();
}

void Pause(std::uint32_t milliseconds) {
    Sleep(milliseconds);
}

}  // namespace vexa::platform

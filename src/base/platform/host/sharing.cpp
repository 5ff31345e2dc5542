// The host runs one program at a time, which has every turn that it does not have already.
#include <ctime>
#include <map>
#include <set>

#include "base/platform.h"

namespace vexa::platform {

namespace {

std::set<std::string>& TurnsTaken() {
    static std::set<std::string> turns;
    return turns;
}

}  // namespace

SystemTurn::SystemTurn(const std::string& name, std::uint32_t)
    : name_(name), isMine_(TurnsTaken().insert(name).second) {}

SystemTurn::~SystemTurn() {
    if (isMine_) TurnsTaken().erase(name_);
}

SharedNumber::SharedNumber(const std::string& name) {
    static std::map<std::string, std::uint32_t> numbers;
    number_ = &numbers[name];
}

SharedNumber::~SharedNumber() = default;

std::uint32_t SharedNumber::get() const {
    return *number_;
}

void SharedNumber::set(std::uint32_t value) {
    *number_ = value;
}

std::uint32_t Ticks() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1'000'000);
}

void Pause(std::uint32_t milliseconds) {
    const timespec pause{milliseconds / 1000, static_cast<long>(milliseconds % 1000) * 1'000'000};
    nanosleep(&pause, nullptr);
}

}  // namespace vexa::platform

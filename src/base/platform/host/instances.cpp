#include <algorithm>
#include <ctime>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/platform/host/sandbox.h"

namespace vexa::platform {

namespace {

constexpr std::uint32_t kFirstRegistered = 0xC000;
constexpr int kDeletions = 6;
constexpr std::size_t kLongestParsedName = 127;

auto FindMarker(const std::string& name) {
    return std::ranges::find_if(host::ThePlaces().markers,
                                [&](const std::string& marker) { return EqualIgnoringCase(marker, name); });
}

}  // namespace

bool AddGlobalMarker(const std::string& name) {
    host::ThePlaces().markers.push_back(name);
    return true;
}

bool GlobalMarkerExists(const std::string& name) {
    return FindMarker(name) != host::ThePlaces().markers.end();
}

void DeleteGlobalMarker(const std::string& name) {
    for (int n = 0; n < kDeletions && GlobalMarkerExists(name); ++n)
        host::ThePlaces().markers.erase(FindMarker(name));
}

std::uint32_t RegisterBroadcast(const std::string& name) {
    std::vector<std::string>& messages = host::ThePlaces().messages;
    const auto known = std::ranges::find(messages, name);
    const auto number = static_cast<std::uint32_t>(known - messages.begin());
    if (known == messages.end()) messages.push_back(name);
    return kFirstRegistered + number;
}

bool PostBroadcast(std::uint32_t message) {
    host::Places& places = host::ThePlaces();
    const std::size_t number = std::size_t{message} - kFirstRegistered;
    if (number >= places.messages.size() || places.refusesBroadcasts) return false;
    places.broadcasts.push_back(places.messages[number]);
    return true;
}

std::string ParseFileName(const std::string& text) {
    std::string path = FullPath(text);
    return path.size() <= kLongestParsedName ? path : std::string();
}

std::int64_t CurrentSeconds() {
    return std::time(nullptr);
}

}  // namespace vexa::platform

// The readable text of a profile that is shipped, as the README of this folder describes it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "language/extension_profile.h"

namespace vexa {

// One profile, and the extensions that each get a file of it; the profile's own extension is not set.
struct ProfileSource {
    ExtensionProfile profile;
    std::vector<std::string> extensions;
};

// None, with what is wrong in error, for a text that is no profile or goes beyond its limits.
std::optional<ProfileSource> ParseProfileSource(std::string_view text, std::string& error);

}  // namespace vexa

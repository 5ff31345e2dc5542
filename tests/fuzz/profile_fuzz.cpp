// Any bytes give a profile within its limits, and a profile comes back from its file as it was.
#include <cstdint>
#include <cstdlib>

#include "language/profile_file.h"

namespace {

void Require(bool held) {
    if (!held) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vexa::ExtensionProfile profile;
    const std::string bytes(data, data + size);
    vexa::DecodeProfile(bytes, profile);
    Require(profile.description().size() <= vexa::kDescriptionLimit);
    Require(profile.delimiters().size() <= vexa::kDelimiterLimit);
    for (const std::string& keyword : profile.keywords())
        Require(!keyword.empty() && keyword.size() <= vexa::kKeywordLimit);

    const std::string written = vexa::EncodeProfile(profile);
    Require(written.size() <= vexa::kLargestProfileFile);
    vexa::ExtensionProfile again;
    Require(vexa::DecodeProfile(written, again));
    Require(vexa::EncodeProfile(again) == written);
    return 0;
}

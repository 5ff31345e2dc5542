// Any bytes give a profile within its limits, and a profile comes back from its file as it was.
#include <cstdint>

#include "fuzz/fuzzing.h"
#include "language/profile_file.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ExtensionProfile profile;
    const std::string bytes(data, data + size);
    DecodeProfile(bytes, profile);
    Require(profile.description().size() <= kDescriptionLimit);
    Require(profile.delimiters().size() <= kDelimiterLimit);
    for (const std::string& keyword : profile.keywords())
        Require(!keyword.empty() && keyword.size() <= kKeywordLimit);

    const std::string written = EncodeProfile(profile);
    Require(written.size() <= kLargestProfileFile);
    ExtensionProfile again;
    Require(DecodeProfile(written, again));
    Require(EncodeProfile(again) == written);
    return 0;
}

}  // namespace vexa::fuzz

// Any bytes give keywords within their limits, and a profile with them comes back from its file with the same ones.
#include <algorithm>
#include <cstdint>

#include "fuzz/fuzzing.h"
#include "language/keyword_file.h"
#include "language/profile_file.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const KeywordWords cut = CutKeywords(text);
    std::size_t characters = 0;
    for (const std::string& word : cut.words) {
        Require(!word.empty() && word.size() <= kKeywordLimit);
        Require(text.find(word) != std::string::npos);
        characters += word.size();
    }
    Require(characters + cut.tooLong * (kKeywordLimit + 1) <= size);

    ExtensionProfile profile;
    profile.replaceKeywords(cut.words);
    const std::size_t kept = std::min(cut.words.size(), kKeywordCountLimit);
    Require(profile.keywords().size() == kept &&
            std::equal(profile.keywords().begin(), profile.keywords().end(), cut.words.begin()));
    ExtensionProfile again;
    Require(DecodeProfile(EncodeProfile(profile), again));
    Require(again.keywords() == profile.keywords());
    return 0;
}

}  // namespace vexa::fuzz

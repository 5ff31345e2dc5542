// Any bytes give keywords within their limits, and a profile with them comes back from its file with the same ones.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "language/keyword_file.h"
#include "language/profile_file.h"

namespace {

void Require(bool held) {
    if (!held) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const vexa::KeywordWords cut = vexa::CutKeywords(text);
    std::size_t characters = 0;
    for (const std::string& word : cut.words) {
        Require(!word.empty() && word.size() <= vexa::kKeywordLimit);
        Require(text.find(word) != std::string::npos);
        characters += word.size();
    }
    Require(characters + cut.tooLong * (vexa::kKeywordLimit + 1) <= size);

    vexa::ExtensionProfile profile;
    profile.replaceKeywords(cut.words);
    const std::size_t kept = std::min(cut.words.size(), vexa::kKeywordCountLimit);
    Require(profile.keywords().size() == kept &&
            std::equal(profile.keywords().begin(), profile.keywords().end(), cut.words.begin()));
    vexa::ExtensionProfile again;
    Require(vexa::DecodeProfile(vexa::EncodeProfile(profile), again));
    Require(again.keywords() == profile.keywords());
    return 0;
}

#include "language/profile_file.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "base/ascii.h"
#include "base/fixed_field.h"

namespace vexa {

namespace {

constexpr std::string_view kMagic = "TLCNJ";
constexpr std::size_t kMagicSize = 10;
constexpr std::size_t kKeywordSize = 21;
constexpr std::size_t kOldKeywordSize = 16;

struct TextField {
    std::size_t size;  // bytes in the file
    const std::string& (ExtensionProfile::*get)() const;
    void (ExtensionProfile::*set)(std::string_view text);
};

// In the order of the file.
constexpr TextField kTextFields[] = {
    {36, &ExtensionProfile::description, &ExtensionProfile::setDescription},
    {3, &ExtensionProfile::commentStart, &ExtensionProfile::setCommentStart},
    {4, &ExtensionProfile::extension, &ExtensionProfile::setExtension},
    {3, &ExtensionProfile::commentEnd, &ExtensionProfile::setCommentEnd},
    {61, &ExtensionProfile::delimiters, &ExtensionProfile::setDelimiters},
    {3, &ExtensionProfile::lineComment, &ExtensionProfile::setLineComment},
};

bool DecodeFields(FieldReader& reader, ExtensionProfile& profile) {
    for (const TextField& field : kTextFields) {
        const auto text = reader.text(field.size);
        if (!text) return false;
        (profile.*field.set)(*text);
    }
    const auto quote = reader.byte();
    if (!quote) return false;
    profile.setStringQuote(*quote);
    const auto preprocessor = reader.byte();
    if (!preprocessor) return false;
    profile.setPreprocessor(*preprocessor);
    return true;
}

// The length in the file is a hint that may lie: a keyword is never longer than its text.
bool DecodeKeywords(FieldReader& reader, std::size_t textSize, ExtensionProfile& profile) {
    const auto count = reader.number();
    if (!count) return false;
    std::vector<std::string> keywords;
    std::optional<std::string_view> text;
    for (std::size_t i = 0; i < *count; ++i) {
        const auto length = reader.number();
        text = length ? reader.text(textSize) : std::nullopt;
        if (!text) break;
        keywords.emplace_back(text->substr(0, *length));
    }
    profile.replaceKeywords(std::move(keywords));
    return *count == 0 || text.has_value();
}

}  // namespace

bool DecodeProfile(std::string_view bytes, ExtensionProfile& profile) {
    const bool old = !bytes.starts_with(kMagic);
    FieldReader reader(bytes);
    if (!old && !reader.text(kMagicSize)) return false;
    const bool numbered = !old && IsDigit(bytes[kMagic.size()]);
    profile.setVersion(old ? kOldProfileVersion : numbered ? bytes[kMagic.size()] - '0' : kProfileVersion);
    return DecodeFields(reader, profile) && DecodeKeywords(reader, old ? kOldKeywordSize : kKeywordSize, profile);
}

std::string EncodeProfile(const ExtensionProfile& profile) {
    std::string bytes;
    AddText(bytes, std::string(kMagic) + std::to_string(kProfileVersion), kMagicSize);
    for (const TextField& field : kTextFields)
        AddText(bytes, (profile.*field.get)(), field.size);
    bytes += profile.stringQuote();
    bytes += profile.preprocessor();
    AddNumber(bytes, profile.keywords().size());
    for (const std::string& keyword : profile.keywords()) {
        AddNumber(bytes, keyword.size());
        AddText(bytes, keyword, kKeywordSize);
    }
    return bytes;
}

}  // namespace vexa

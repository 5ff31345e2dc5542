#include "language/keyword_file.h"

#include <algorithm>

#include "base/file.h"
#include "language/extension_profile.h"

namespace vexa {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

constexpr bool PartsWords(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7F';
}

}  // namespace

KeywordWords CutKeywords(std::string_view text) {
    if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
    KeywordWords cut;
    auto next = text.begin();
    while ((next = std::find_if_not(next, text.end(), PartsWords)) != text.end()) {
        const auto end = std::find_if(next, text.end(), PartsWords);
        const std::string_view word(next, end);
        if (word.size() <= kKeywordLimit) {
            cut.words.emplace_back(word);
        } else {
            ++cut.tooLong;
        }
        next = end;
    }
    return cut;
}

std::optional<KeywordWords> ReadKeywordFile(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    if (!file.isOpen()) return std::nullopt;
    const std::optional<std::string> text = file.readAll(kLargestKeywordFile);
    if (!text) return std::nullopt;
    return CutKeywords(*text);
}

}  // namespace vexa

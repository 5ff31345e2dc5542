// A text file of keywords, as it is imported into a profile: words between blanks and ends of lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexa {

// More bytes than any list of keywords that a profile can hold needs; a larger file is no list of keywords.
inline constexpr std::size_t kLargestKeywordFile = 4 * 1024 * 1024;

struct KeywordWords {
    std::vector<std::string>
        words;                // of 1 to 20 characters, in the order of the text, each as often as it stands there
    std::size_t tooLong = 0;  // words that were left out for their length

    bool operator==(const KeywordWords&) const = default;
};

// Takes any bytes: blanks and control characters part the words, and so does the mark that some editors write at the
// start of a UTF-8 file.
KeywordWords CutKeywords(std::string_view text);

// None when the file cannot be read or is larger than kLargestKeywordFile.
std::optional<KeywordWords> ReadKeywordFile(const std::string& path);

}  // namespace vexa

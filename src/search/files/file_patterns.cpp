#include "search/files/file_patterns.h"

#include "base/ascii.h"
#include "base/take_text.h"

namespace vexa {

namespace {

bool IsSame(char wanted, char c) {
    return wanted == '?' || LowerAscii(wanted) == LowerAscii(c);
}

// What the last "*" stands for grows by a character wherever the rest does not fit.
bool Matches(std::string_view pattern, std::string_view name) {
    std::size_t wanted = 0;
    std::size_t at = 0;
    std::size_t afterStar = std::string_view::npos;
    std::size_t starEnd = 0;
    while (at < name.size()) {
        if (wanted < pattern.size() && pattern[wanted] == '*') {
            afterStar = ++wanted;
            starEnd = at;
        } else if (wanted < pattern.size() && IsSame(pattern[wanted], name[at])) {
            ++wanted;
            ++at;
        } else if (afterStar != std::string_view::npos) {
            wanted = afterStar;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', wanted) == std::string_view::npos;
}

}  // namespace

bool FilePatterns::match(std::string_view name) const {
    std::string_view rest = patterns_;
    bool hasPattern = false;
    while (!rest.empty()) {
        const std::string_view pattern = TrimBlanks(TakeUpTo(rest, ';'));
        if (pattern == "*.*" || (!pattern.empty() && Matches(pattern, name))) return true;
        hasPattern = hasPattern || !pattern.empty();
    }
    return !hasPattern;
}

}  // namespace vexa

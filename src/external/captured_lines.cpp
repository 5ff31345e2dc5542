#include "external/captured_lines.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/file.h"
#include "base/utf8.h"

namespace vexa {

namespace {

constexpr std::size_t kLongestWithEnd = kCapturedLineLimit + 2;

// A line at the start of a text and what it takes with its end.
struct CutLine {
    std::string_view line;
    std::size_t taken;
};

std::string_view UpToCarriageReturn(std::string_view line) {
    return line.substr(0, line.find('\r'));
}

// None when the line may go on after the text.
std::optional<CutLine> CutFirst(std::string_view text, bool atEnd) {
    const std::size_t end = text.substr(0, kLongestWithEnd).find('\n');
    const bool fits = end <= kCapturedLineLimit || (end == kCapturedLineLimit + 1 && text[end - 1] == '\r');
    if (end != std::string_view::npos && fits) return CutLine{UpToCarriageReturn(text.substr(0, end)), end + 1};
    if (text.size() < kLongestWithEnd && !atEnd) return std::nullopt;
    const std::string_view line = text.substr(0, CutOfUtf8(text, kCapturedLineLimit));
    return CutLine{UpToCarriageReturn(line), line.size()};
}

// Hands the lines of a text over. What is left is the beginning of a line; none when the function has had enough.
std::optional<std::string_view> HandOver(std::string_view text, bool atEnd,
                                         const Callback<bool(std::string_view)>& take) {
    while (!text.empty()) {
        const std::optional<CutLine> cut = CutFirst(text, atEnd);
        if (!cut) break;
        text.remove_prefix(cut->taken);
        const std::optional<std::string> ansi = AnsiOfUtf8(cut->line);
        if (!take(ansi ? *ansi : cut->line)) return std::nullopt;
    }
    return text;
}

}  // namespace

bool ReadCapturedLines(const std::string& path, const Callback<bool(std::string_view)>& take) {
    constexpr std::size_t kBlock = 64 * 1024;
    File file(path, platform::OpenMode::Read);
    if (!file.isOpen()) return false;
    std::vector<char> buffer(kBlock + kLongestWithEnd);
    std::size_t kept = 0;
    for (bool atEnd = false; !atEnd;) {
        const std::size_t count = file.read(buffer.data() + kept, kBlock).value_or(0);
        atEnd = count < kBlock;
        const auto rest = HandOver({buffer.data(), kept + count}, atEnd, take);
        if (!rest) break;
        kept = rest->size();
        std::copy(rest->begin(), rest->end(), buffer.begin());
    }
    return true;
}

}  // namespace vexa

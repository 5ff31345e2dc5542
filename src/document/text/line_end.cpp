#include "document/text/line_end.h"

#include <algorithm>

namespace vexa {

std::string_view BytesOf(LineEnd end) {
    static constexpr std::string_view kBytes[kLineEnds] = {"", "\r\n", "\n", "\r"};
    return kBytes[static_cast<std::size_t>(end)];
}

std::string_view NameOf(LineEnd end) {
    static constexpr std::string_view kNames[kLineEnds] = {"", "CRLF", "LF", "CR"};
    return kNames[static_cast<std::size_t>(end)];
}

CutLine LineCutter::next() {
    const std::size_t feed = lengthBefore('\n', feed_);
    const std::size_t carriageReturn = lengthBefore('\r', carriageReturn_);
    if (feed < carriageReturn) return {feed, LineEnd::Lf};
    if (feed == carriageReturn) return {feed, LineEnd::None};
    const bool isFeed = feed < rest_.size();
    return {carriageReturn, isFeed && carriageReturn + 1 == feed ? LineEnd::CrLf : LineEnd::Cr};
}

// Up to the next such character, or to the bytes' end. It is looked for again only once the line before it is taken.
std::size_t LineCutter::lengthBefore(char end, const char*& next) const {
    if (next == nullptr || next < rest_.data()) next = rest_.data() + std::min(rest_.find(end), rest_.size());
    return static_cast<std::size_t>(next - rest_.data());
}

std::string_view LineCutter::take(const CutLine& line) {
    const std::string_view text = rest_.substr(0, line.length);
    rest_.remove_prefix(line.length + LengthOf(line.end));
    return text;
}

LineEndStyle LineEndTally::style(LineEnd otherwise) const {
    LineEndStyle style{otherwise, false};
    std::int32_t most = 0;
    for (const LineEnd end : {LineEnd::CrLf, LineEnd::Lf, LineEnd::Cr}) {
        const std::int32_t count = counts_[static_cast<std::size_t>(end)];
        style.isMixed |= count > 0 && most > 0;
        if (count <= most) continue;
        most = count;
        style.common = end;
    }
    return style;
}

}  // namespace vexa

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
    if (feed_ == nullptr || feed_ < rest_.data()) feed_ = rest_.data() + std::min(rest_.find('\n'), rest_.size());
    const auto feed = static_cast<std::size_t>(feed_ - rest_.data());
    const bool isFeed = feed < rest_.size();
    const std::size_t carriageReturn = rest_.substr(0, feed).find('\r');
    if (carriageReturn == rest_.npos) return {feed, isFeed ? LineEnd::Lf : LineEnd::None};
    return {carriageReturn, isFeed && carriageReturn + 1 == feed ? LineEnd::CrLf : LineEnd::Cr};
}

std::string_view LineCutter::take(const CutLine& line) {
    const std::string_view text = rest_.substr(0, line.length);
    rest_.remove_prefix(line.length + BytesOf(line.end).size());
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

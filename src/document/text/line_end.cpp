#include "document/text/line_end.h"

namespace vexa {

std::string_view BytesOf(LineEnd end) {
    static constexpr std::string_view kBytes[kLineEnds] = {"", "\r\n", "\n", "\r"};
    return kBytes[static_cast<std::size_t>(end)];
}

std::string_view NameOf(LineEnd end) {
    static constexpr std::string_view kNames[kLineEnds] = {"", "CRLF", "LF", "CR"};
    return kNames[static_cast<std::size_t>(end)];
}

LineCutter::LineCutter(std::string_view bytes, LinesEndWith ends)
    : rest_(bytes),
      search_(ends == LinesEndWith::AnyEnd ? LineEndSearch::Sought::LfAndCr : LineEndSearch::Sought::Lf),
      ends_(ends) {}

CutLine LineCutter::next(std::size_t within) const {
    const std::string_view seen = rest_.substr(0, within);
    const std::size_t length = search_.find(seen);
    if (length == seen.size()) return {rest_.size(), LineEnd::None};
    if (seen[length] == '\r') return {length, rest_.substr(length + 1).starts_with('\n') ? LineEnd::CrLf : LineEnd::Cr};
    const bool isCrLf = ends_ == LinesEndWith::LfOrCrLf && length > 0 && seen[length - 1] == '\r';
    return isCrLf ? CutLine{length - 1, LineEnd::CrLf} : CutLine{length, LineEnd::Lf};
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

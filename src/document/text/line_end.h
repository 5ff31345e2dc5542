// What ends a line of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "document/text/line_end_search.h"

namespace vexa {

// None is said of a line that the user has only come to, and of a last line without an end. Any other line without one
// has that of its document.
enum class LineEnd : std::uint8_t { None, CrLf, Lf, Cr };
inline constexpr std::size_t kLineEnds = 4;

std::string_view BytesOf(LineEnd end);
constexpr std::size_t LengthOf(LineEnd end) {
    return end == LineEnd::CrLf ? 2 : end == LineEnd::None ? 0 : 1;
}
// For the status line: "CRLF".
std::string_view NameOf(LineEnd end);

// A line of a file's bytes.
struct CutLine {
    std::size_t length;
    LineEnd end;
};

// What ends the lines of a file: a CR before an LF may belong to the line, and a CR alone may end one.
enum class LinesEndWith { Lf, LfOrCrLf, AnyEnd };

// Cuts bytes into lines. Where any end is one, a CR at the bytes' end may be the half of a CR LF.
class LineCutter {
  public:
    LineCutter(std::string_view bytes, LinesEndWith ends);
    bool isAtEnd() const { return rest_.empty(); }
    // The next line; the rest of the bytes without an end when there is none any more, or not among so many bytes.
    CutLine next(std::size_t within = std::string_view::npos) const;
    // Goes past it.
    std::string_view take(const CutLine& line);

  private:
    std::string_view rest_;
    LineEndSearch search_;
    LinesEndWith ends_;
};

// How the lines of a document that keeps their ends do end, as last looked at.
struct LineEndStyle {
    LineEnd common = LineEnd::CrLf;  // that of most lines, and of every new one
    bool isMixed = false;
};

// Counts lines by their ends.
class LineEndTally {
  public:
    void add(LineEnd end) { ++counts_[static_cast<std::size_t>(end)]; }
    bool has(LineEnd end) const { return counts_[static_cast<std::size_t>(end)] > 0; }
    // Where no line has an end, the common one is as given.
    LineEndStyle style(LineEnd otherwise) const;

  private:
    std::int32_t counts_[kLineEnds] = {};
};

}  // namespace vexa

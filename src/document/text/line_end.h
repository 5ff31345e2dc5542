// What ends a line of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

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

// Cuts bytes into lines that keep their ends. A CR alone ends a line, too; at the bytes' end it may be the half of a
// CR LF. Every byte is looked at a fixed number of times, whatever ends the lines.
class LineCutter {
  public:
    explicit LineCutter(std::string_view bytes) : rest_(bytes) {}
    bool isAtEnd() const { return rest_.empty(); }
    // The next line; the rest of the bytes without an end when there is none any more.
    CutLine next();
    // Goes past it.
    std::string_view take(const CutLine& line);

  private:
    std::size_t lengthBefore(char end, const char*& next) const;

    std::string_view rest_;
    const char* feed_ = nullptr;            // the next LF, as last looked for; where the bytes end when there is none
    const char* carriageReturn_ = nullptr;  // the next CR likewise
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
    // Where no line has an end, the common one is as given.
    LineEndStyle style(LineEnd otherwise) const;

  private:
    std::int32_t counts_[kLineEnds] = {};
};

}  // namespace vexa

// One line of text with the position of the cursor in it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/units.h"
#include "document/text/line_end.h"
#include "language/line_state.h"

namespace vexa {

// A line's text is either borrowed from the block that its file was read into, or, from its first change on, its own,
// with room to type into once a character has been typed or deleted. Most lines are never changed, and a reserve that
// is never made costs neither time nor memory. The text may hold any bytes and is always followed by a NUL.
class TextLine {
  public:
    // Says that the text and the record belong to a LineArena.
    struct InArena {};

    // The room to type into that a line's own text has beyond its first contents, in bytes.
    static constexpr std::size_t kReserve = 302;

    TextLine() = default;
    explicit TextLine(std::string_view text);
    TextLine(const char* text, std::size_t length, InArena)
        : text_(text), length_(static_cast<std::uint32_t>(length)), recordInArena_(1), isChanged_(0) {}
    ~TextLine();
    TextLine(const TextLine&) = delete;
    TextLine& operator=(const TextLine&) = delete;

    std::string_view text() const { return {text_, length_}; }
    const char* c_str() const { return text_; }
    std::int32_t length() const { return static_cast<std::int32_t>(length_); }
    // Whether the text has been changed, or the line made, since the document was loaded or saved.
    bool isChanged() const { return isChanged_ != 0; }
    void clearChanged() { isChanged_ = 0; }

    // Changes. Columns must not lie beyond the text's end. On std::bad_alloc the line is as it was.
    void insert(CharColumn column, char c);
    char erase(CharColumn column);
    char replace(CharColumn column, char c);
    void append(std::string_view text);
    // Replaces `count` characters by a text, which must not be this line's own. Makes no room to type into: many lines
    // may be changed at once.
    void replaceRun(CharColumn column, std::int32_t count, std::string_view text);
    void truncate(CharColumn column);

    // The last column that a line can keep.
    static constexpr std::int32_t kLastColumn = (1 << 24) - 1;
    CharColumn column() const { return CharColumn(static_cast<std::int32_t>(column_)); }
    // Takes a column within the limits of the cursor.
    void setColumn(CharColumn column) { column_ = static_cast<std::uint32_t>(column.value) & kLastColumn; }

    LineEnd end() const { return static_cast<LineEnd>(end_); }
    void setEnd(LineEnd end) { end_ = static_cast<std::uint32_t>(end) & 3; }
    // Whether a file that keeps its line ends has anything of this line.
    bool hasContents() const { return length_ != 0 || end_ != 0; }

    // Whether the text is still that of which somebody has kept the columns.
    bool isMeasured() const { return isMeasured_ != 0; }
    void setMeasured() const { isMeasured_ = 1; }

    // What syntax colouring keeps with a line; any change of the text makes it old.
    LineEffect effect;

  private:
    friend struct LineDeleter;
    char* makeRoom(std::size_t length, std::size_t reserve = kReserve);
    std::size_t capacity() const;

    const char* text_ = "";
    std::uint32_t length_ = 0;
    // All in one word: a text may have millions of lines.
    std::uint32_t column_ : 24 = 0;
    std::uint32_t end_ : 2 = 0;
    std::uint32_t ownsText_ : 1 = 0;
    std::uint32_t recordInArena_ : 1 = 0;
    std::uint32_t isChanged_ : 1 = 1;
    mutable std::uint32_t isMeasured_ : 1 = 0;
};

// Ends a line's life; the memory of a record in an arena stays with the arena.
struct LineDeleter {
    void operator()(TextLine* line) const;
};
using LinePtr = std::unique_ptr<TextLine, LineDeleter>;

}  // namespace vexa

// One line of text with the position of the cursor in it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/units.h"

namespace vexa {

// A line's text is either borrowed from the block that its file was read into, or, from its first change on, its own
// with room to type into. Most lines are never changed, and a reserve that is never made costs neither time nor memory.
// The text may hold any bytes and is always followed by a NUL.
class TextLine {
  public:
    // Says that the text and the record belong to a LineArena.
    struct InArena {};

    // The room that a line's own text has beyond its first contents, in bytes.
    static constexpr std::size_t kReserve = 302;

    TextLine() = default;
    explicit TextLine(std::string_view text);
    TextLine(const char* text, std::size_t length, InArena)
        : text_(text), length_(static_cast<std::uint32_t>(length)), recordInArena_(true), isChanged_(false) {}
    ~TextLine();
    TextLine(const TextLine&) = delete;
    TextLine& operator=(const TextLine&) = delete;

    std::string_view text() const { return {text_, length_}; }
    const char* c_str() const { return text_; }
    std::int32_t length() const { return static_cast<std::int32_t>(length_); }
    bool isEmpty() const { return length_ == 0; }
    // Whether the text has been changed, or the line made, since the document was loaded or saved.
    bool isChanged() const { return isChanged_; }
    void clearChanged() { isChanged_ = false; }

    // Changes. Columns must not lie beyond the text's end. On std::bad_alloc the line is as it was.
    void insert(CharColumn column, char c);
    char erase(CharColumn column);
    char replace(CharColumn column, char c);
    void append(std::string_view text);
    // Replaces `count` characters by a text, which must not be this line's own.
    void replaceRun(CharColumn column, std::int32_t count, std::string_view text);
    void truncate(CharColumn column);

    CharColumn column() const { return CharColumn(column_); }
    // Takes a column within the limits of the cursor (0 to kLastColumn).
    void setColumn(CharColumn column) { column_ = static_cast<std::uint16_t>(column.value); }

    // The state that syntax colouring keeps with a line; all clear at first. The line opens a block comment when,
    // starting outside, it ends inside one; it closes one when, starting inside, it ends outside.
    bool opensComment = false;
    bool closesComment = false;
    bool commentEffectKnown = false;  // the two above are those of the present text; any change of it clears this

  private:
    friend struct LineDeleter;
    char* makeRoom(std::size_t length);
    std::size_t capacity() const;

    const char* text_ = "";
    std::uint32_t length_ = 0;
    std::uint16_t column_ = 0;
    bool ownsText_ : 1 = false;
    bool recordInArena_ : 1 = false;
    bool isChanged_ : 1 = true;
};

// Ends a line's life; the memory of a record in an arena stays with the arena.
struct LineDeleter {
    void operator()(TextLine* line) const;
};
using LinePtr = std::unique_ptr<TextLine, LineDeleter>;

}  // namespace vexa

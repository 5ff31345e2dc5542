#include "document/text/text_line.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/limits.h"

namespace vexa {

static_assert(kWideLimits.lastColumn <= TextLine::kLastColumn);

namespace {

// A line's own text lies after its capacity in one block, so that a line that only borrows its text has no field for
// it.
constexpr std::size_t kHeader = sizeof(std::uint32_t);

char* NewText(std::size_t capacity) {
    char* block = new char[kHeader + capacity + 1];
    const auto stored = static_cast<std::uint32_t>(capacity);
    std::memcpy(block, &stored, kHeader);
    return block + kHeader;
}

char* BlockOf(const char* text) {
    return const_cast<char*>(text) - kHeader;
}

std::size_t Offset(CharColumn column) {
    return static_cast<std::size_t>(column.value);
}

}  // namespace

TextLine::TextLine(std::string_view text) {
    if (text.empty()) return;
    // No room to type into until someone does: a pasted block may have many lines.
    char* own = NewText(text.size());
    std::memcpy(own, text.data(), text.size());
    own[text.size()] = '\0';
    text_ = own;
    length_ = static_cast<std::uint32_t>(text.size());
    ownsText_ = 1;
}

TextLine::~TextLine() {
    if (ownsText_) delete[] BlockOf(text_);
}

std::size_t TextLine::capacity() const {
    if (!ownsText_) return 0;
    std::uint32_t stored = 0;
    std::memcpy(&stored, BlockOf(text_), kHeader);
    return stored;
}

// The text, to be written to, with room for that many characters and a NUL. The reserve is for a first text of its own.
char* TextLine::makeRoom(std::size_t length, std::size_t reserve) {
    effect.isCurrent = false;
    isChanged_ = 1;
    isMeasured_ = 0;
    if (ownsText_ && length <= capacity()) return const_cast<char*>(text_);
    const std::size_t first = std::max<std::size_t>(length, length_) + reserve;
    char* text = NewText(ownsText_ ? std::max(first, capacity() * 2) : first);
    std::memcpy(text, text_, length_ + 1);
    if (ownsText_) delete[] BlockOf(text_);
    text_ = text;
    ownsText_ = 1;
    return text;
}

void TextLine::insert(CharColumn column, char c) {
    char* text = makeRoom(length_ + 1);
    const std::size_t at = Offset(column);
    std::memmove(text + at + 1, text + at, length_ + 1 - at);
    text[at] = c;
    ++length_;
}

char TextLine::erase(CharColumn column) {
    char* text = makeRoom(length_);
    const std::size_t at = Offset(column);
    const char old = text[at];
    std::memmove(text + at, text + at + 1, length_ - at);
    --length_;
    return old;
}

char TextLine::replace(CharColumn column, char c) {
    char* text = makeRoom(length_);
    return std::exchange(text[Offset(column)], c);
}

void TextLine::append(std::string_view added) {
    char* text = makeRoom(length_ + added.size());
    std::memcpy(text + length_, added.data(), added.size());
    length_ += static_cast<std::uint32_t>(added.size());
    text[length_] = '\0';
}

void TextLine::replaceRun(CharColumn column, std::int32_t count, std::string_view inserted) {
    const std::size_t at = Offset(column);
    const std::size_t after = at + static_cast<std::size_t>(count);
    const std::size_t length = length_ - static_cast<std::size_t>(count) + inserted.size();
    char* text = makeRoom(length, 0);
    std::memmove(text + at + inserted.size(), text + after, length_ + 1 - after);
    std::memcpy(text + at, inserted.data(), inserted.size());
    length_ = static_cast<std::uint32_t>(length);
}

void TextLine::truncate(CharColumn column) {
    char* text = makeRoom(length_);
    length_ = static_cast<std::uint32_t>(Offset(column));
    text[length_] = '\0';
}

void LineDeleter::operator()(TextLine* line) const {
    if (line->recordInArena_) {
        line->~TextLine();
    } else {
        delete line;
    }
}

}  // namespace vexa

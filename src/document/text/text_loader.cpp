#include "document/text/text_loader.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "base/strings.h"
#include "document/text/text_document.h"

namespace vexa {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;
// What must be in the block to cut a line: the characters of one read, a CR LF, and room for a NUL.
constexpr std::size_t kLookAhead = kLineReadLimit + 3;
// A line is not split after a blank that leaves only this many characters or fewer, the blank counted.
constexpr std::size_t kShortestRest = 2;
constexpr std::size_t kRestWithoutBlank = 5;

// Where a line that is too long is split.
std::size_t SplitPoint(std::string_view text) {
    const std::size_t blank = text.rfind(' ');
    if (blank != std::string_view::npos && text.size() - blank > kShortestRest) return blank + 1;
    return text.size() - kRestWithoutBlank;
}

}  // namespace

struct TextLoader::Cut {
    std::size_t length;   // characters of the line
    std::size_t lineEnd;  // bytes of the line end after them; 0 when it was not read or there is none
    bool tooLong;
};

bool TextLoader::read(File& file) {
    file_ = &file;
    const std::int32_t growBy = document_.lines().growBy();
    document_.lines().setGrowBy(kLoadGrowth);
    const bool complete = readLines();
    document_.lines().setGrowBy(growBy);
    if (complete && document_.linesWrapped_)
        document_.notices().box(LoadText(TextId::LinesWrapped), TextId::ProgramCaption, BoxButtons::Ok);
    return complete;
}

bool TextLoader::readLines() try {
    for (;;) {
        if (!endOfFile_ && available() < kLookAhead && !refill()) return false;
        if (available() == 0) {
            document_.disk_.checksum = checksum_.value();
            return true;
        }
        if (lines_ > kLastLoadedLine) {
            document_.notices().box(LoadText(TextId::FileTooLarge), TextId::ProgramCaption, BoxButtons::Ok);
            document_.truncated_ = true;
            return true;
        }
        storeLine();
    }
} catch (const std::bad_alloc&) {
    return false;
}

// Moves the unread rest of the block to a new one and fills that from the file.
bool TextLoader::refill() {
    const std::size_t rest = available();
    const std::uint64_t total = file_->size().value_or(kBlock);
    const std::uint64_t unread = total > bytesRead_ ? total - bytesRead_ : 0;  // a file may change meanwhile
    const std::size_t size = rest + static_cast<std::size_t>(std::clamp<std::uint64_t>(unread, kLookAhead, kBlock));
    char* block = arena_.allocateText(size + 1);
    if (rest > 0) std::memcpy(block, next_, rest);
    next_ = block;
    end_ = block + rest;
    char* const fresh = end_;
    while (end_ < block + size) {
        const std::optional<std::size_t> count = file_->read(end_, static_cast<std::size_t>(block + size - end_));
        if (!count) return false;
        endOfFile_ = *count == 0;
        if (endOfFile_) break;
        end_ += *count;
    }
    noteRead(fresh);
    return true;
}

// What has been read into the block from here on.
void TextLoader::noteRead(const char* begin) {
    const std::string_view bytes(begin, static_cast<std::size_t>(end_ - begin));
    if (bytesRead_ == 0) document_.disk_.kind = KindOfContents(bytes);
    bytesRead_ += bytes.size();
    checksum_.add(bytes);
}

// Among bytes, a CR before the line end belongs to the line.
void TextLoader::noteLineEnd(const Cut& cut) {
    if (cut.lineEnd == 0) return;
    const bool isCrLf = cut.lineEnd == 2 || (bytes_ && cut.length > 0 && next_[cut.length - 1] == '\r');
    (isCrLf ? document_.disk_.lineEnds.crLf : document_.disk_.lineEnds.lf) = true;
}

TextLoader::Cut TextLoader::nextCut() const {
    const std::size_t window = std::min<std::size_t>(available(), kLineReadLimit + 1);
    const char* feed = static_cast<const char*>(std::memchr(next_, '\n', window));
    std::size_t length = feed ? static_cast<std::size_t>(feed - next_) : available();
    const bool crBefore = feed && !bytes_ && length > 0 && next_[length - 1] == '\r';
    if (crBefore) --length;
    if (length >= kLineReadLimit) return {kLineReadLimit, 0, true};
    const std::size_t lineEnd = feed ? (crBefore ? 2 : 1) : 0;
    return {length, lineEnd, length + (feed ? 1 : 0) >= kLineReadLimit};
}

void TextLoader::storeLine() {
    const Cut cut = nextCut();
    noteLineEnd(cut);
    if (cut.tooLong) {
        storeSplit(cut);
        return;
    }
    char* text = next_;
    next_ += cut.length + cut.lineEnd;
    text[cut.length] = '\0';
    store(text, cut.length);
}

// The first part is copied, as its last character has no line end after it that a NUL could replace. The rest is
// moved up over a line end that was read with it.
void TextLoader::storeSplit(const Cut& cut) {
    document_.linesWrapped_ = true;
    const std::size_t split = SplitPoint({next_, cut.length});
    char* copy = arena_.allocateText(split + 1);
    std::memcpy(copy, next_, split);
    copy[split] = '\0';
    std::memmove(next_ + split + cut.lineEnd, next_ + split, cut.length - split);
    next_ += split + cut.lineEnd;
    store(copy, split);
}

void TextLoader::store(const char* text, std::size_t length) {
    document_.lines().put(LinePtr(arena_.makeLine(text, length)), lines_++);
}

}  // namespace vexa

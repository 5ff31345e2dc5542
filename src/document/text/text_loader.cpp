#include "document/text/text_loader.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "base/strings.h"
#include "document/text/memory_room.h"
#include "document/text/text_document.h"

namespace vexa {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;
// Read at a time, so that what is read is still near the processor when it is summed up.
constexpr std::size_t kPiece = std::size_t{1} << 17;
// What must be in the block to cut a line of limited length: the characters of one read, a CR LF, and room for a NUL.
constexpr std::size_t kLookAhead = Limits().lineRead + 3;
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
    std::size_t length;  // characters of the line
    LineEnd end;         // after them; none, too, when it was not read
    bool tooLong;
    std::size_t size() const { return length + LengthOf(end); }
};

bool TextLoader::read(File& file) {
    file_ = &file;
    const std::int32_t growBy = document_.lines().growBy();
    document_.lines().setGrowBy(kLoadGrowth);
    const bool complete = mayBeWhole() && readLines();
    document_.lines().setGrowBy(growBy);
    document_.disk_.lineEnds = {tally_.has(LineEnd::CrLf), tally_.has(LineEnd::Lf)};
    if (complete && document_.linesWrapped_)
        document_.notices().box(LoadText(TextId::LinesWrapped), TextId::ProgramCaption, BoxButtons::Ok);
    return complete;
}

bool TextLoader::fail(TextId why) {
    document_.loadFailure_ = why;
    return false;
}

// A text takes its bytes, the records of its lines and room for other work. What begins to be loaded all the same and
// does not find memory has told the user so by then.
bool TextLoader::mayBeWhole() {
    constexpr std::uint64_t kSmall = std::uint64_t{1} << 25;
    const std::uint64_t size = rules_.limits.wholeFile > 0 ? file_->size().value_or(0) : 0;
    if (size > rules_.limits.wholeFile) return fail(TextId::FileTooLargeToOpen);
    return size < kSmall || HasRoomFor(2 * size, kBlock) || fail(TextId::NoMemoryToOpen);
}

bool TextLoader::readLines() try {
    for (;;) {
        if (!endOfFile_ && available() < kLookAhead && !refill()) return false;
        if (available() == 0) {
            document_.disk_.checksum = checksum_.value();
            return true;
        }
        if (lines_ > rules_.limits.lastLoadedLine) {
            document_.notices().box(LoadText(TextId::FileTooLarge), TextId::ProgramCaption, BoxButtons::Ok);
            document_.truncated_ = true;
            return true;
        }
        const Cut cut = nextCut();
        if (!mayGoOn(cut)) {
            storeCut(cut);
        } else if (!refill()) {
            return false;
        }
    }
} catch (const std::bad_alloc&) {
    return false;
}

// Moves the unread rest of the block to a new one and fills that from the file. A line that is longer than a block has
// the double room at each turn.
bool TextLoader::refill() {
    const std::size_t rest = available();
    const std::uint64_t total = file_->size().value_or(kBlock);
    const std::uint64_t unread = total > bytesRead_ ? total - bytesRead_ : 0;  // a file may change meanwhile
    const std::size_t size =
        rest + static_cast<std::size_t>(std::clamp<std::uint64_t>(unread, kLookAhead, std::max(kBlock, rest)));
    if (rest > kBlock && !HasRoomFor(1, size + 1)) return fail(TextId::NoMemoryToOpen);
    char* block = arena_.allocateText(size + 1);
    if (rest > 0) std::memcpy(block, next_, rest);
    next_ = block;
    end_ = block + rest;
    while (end_ < block + size && !endOfFile_) {
        const std::size_t room = static_cast<std::size_t>(block + size - end_);
        const std::optional<std::size_t> count = file_->read(end_, std::min(room, kPiece));
        if (!count) return false;
        endOfFile_ = *count == 0;
        noteRead(*count);
    }
    cutter_ = LineCutter({next_, available()}, endsOfLines());
    return true;
}

// What has been read into the block.
void TextLoader::noteRead(std::size_t count) {
    const std::string_view bytes(end_, count);
    if (bytesRead_ == 0) document_.disk_.kind = KindOfContents(bytes);
    bytesRead_ += count;
    checksum_.add(bytes);
    end_ += count;
}

// What goes to the end of what has been read may go on after it, and a CR there may belong to an LF.
bool TextLoader::mayGoOn(Cut cut) const {
    return cut.size() == available() && !cut.tooLong && !endOfFile_;
}

LinesEndWith TextLoader::endsOfLines() const {
    if (rules_.keepsLineEnds) return LinesEndWith::AnyEnd;
    return bytes_ ? LinesEndWith::Lf : LinesEndWith::LfOrCrLf;
}

TextLoader::Cut TextLoader::nextCut() const {
    const std::size_t limit = rules_.limits.lineRead;
    const CutLine line = cutter_.next(limit + 1);
    if (line.length >= limit) return {limit, LineEnd::None, true};
    return {line.length, line.end, line.end != LineEnd::None && line.length + 1 >= limit};
}

void TextLoader::storeCut(Cut cut) {
    const bool isCrLf = cut.end == LineEnd::Lf && cut.length > 0 && next_[cut.length - 1] == '\r';
    tally_.add(isCrLf ? LineEnd::CrLf : cut.end);
    if (cut.tooLong) {
        storeSplit(cut);
        return;
    }
    char* text = next_;
    next_ += cut.size();
    text[cut.length] = '\0';
    cutter_.take({cut.length, cut.end});
    LinePtr line(arena_.makeLine(text, cut.length));
    if (rules_.keepsLineEnds) line->setEnd(cut.end);
    store(std::move(line));
}

// The first part is copied, as its last character has no line end after it that a NUL could replace. The rest is
// moved up over a line end that was read with it.
void TextLoader::storeSplit(Cut cut) {
    document_.linesWrapped_ = true;
    const std::size_t split = SplitPoint({next_, cut.length});
    char* copy = arena_.allocateText(split + 1);
    std::memcpy(copy, next_, split);
    copy[split] = '\0';
    std::memmove(next_ + split + LengthOf(cut.end), next_ + split, cut.length - split);
    next_ += split + LengthOf(cut.end);
    cutter_.take({split, cut.end});
    store(LinePtr(arena_.makeLine(copy, split)));
}

void TextLoader::store(LinePtr line) {
    if (!document_.lines().put(std::move(line), lines_++)) throw std::bad_alloc();
}

}  // namespace vexa

#include "search/files/line_blocks.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace vexa {

bool LineBlocks::open(const std::string& path) {
    file_ = File(path, platform::OpenMode::Read);
    size_ = lines_ = 0;
    isFirst_ = true;
    atEnd_ = false;
    state_ = file_.isOpen() ? State::Reading : State::Failed;
    return file_.isOpen();
}

bool LineBlocks::finish(State state) {
    file_.close();
    state_ = state;
    return false;
}

// A byte more than the capacity is for the end of the text.
void LineBlocks::grow() {
    const std::size_t capacity = std::max(2 * capacity_, kBlock);
    auto larger = std::make_unique_for_overwrite<char[]>(capacity + 1);
    if (size_ > 0) std::memcpy(larger.get(), buffer_.get(), size_);
    buffer_ = std::move(larger);
    capacity_ = capacity;
}

bool LineBlocks::next() {
    if (state_ != State::Reading) return false;
    size_ -= lines_;
    if (size_ > 0) std::memmove(buffer_.get(), end(), size_);
    lines_ = 0;
    while (lines_ == 0) {
        if (atEnd_ && size_ == 0) return finish(State::Ended);
        if (!fill()) return false;
        const std::string_view read(buffer_.get(), size_);
        lines_ = atEnd_ || size_ >= kLongestLine ? size_ : read.rfind('\n') + 1;
    }
    return true;
}

bool LineBlocks::fill() {
    if (size_ == capacity_) grow();
    const auto count = file_.read(buffer_.get() + size_, capacity_ - size_);
    if (!count) return finish(State::Failed);
    size_ += *count;
    atEnd_ = size_ < capacity_;
    const bool isBinary = isFirst_ && std::memchr(buffer_.get(), '\0', std::min(size_, kLookedAt)) != nullptr;
    isFirst_ = false;
    return isBinary ? finish(State::Ended) : true;
}

}  // namespace vexa

#include "quickhelp/help_index_reader.h"

#include "base/ascii.h"

namespace vexa {

namespace {

constexpr std::size_t kBlock = 64 * 1024;

}  // namespace

// Adds a block behind what has not been given; false when the file has no more.
bool HelpIndexReader::readMore() {
    if (atEnd_) return false;
    block_.erase(0, start_);
    start_ = 0;
    const std::size_t kept = block_.size();
    block_.resize(kept + kBlock);
    const std::optional<std::size_t> count = file_.read(block_.data() + kept, kBlock);
    failed_ = !count;
    atEnd_ = count.value_or(0) < kBlock;
    block_.resize(kept + count.value_or(0));
    return block_.size() > kept;
}

std::optional<std::string_view> HelpIndexReader::nextLine() {
    std::size_t end = block_.find('\n', start_);
    while (end == std::string::npos && block_.size() - start_ < kBlock && readMore())
        end = block_.find('\n', start_);
    if (end == std::string::npos && start_ == block_.size()) return std::nullopt;
    std::string_view line = std::string_view(block_).substr(start_, end - start_);
    start_ += line.size() + (end == std::string::npos ? 0 : 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

bool HelpIndexReader::hasLineThatBeginsWith(std::string_view keyword) {
    while (const std::optional<std::string_view> line = nextLine()) {
        if (EqualIgnoringCase(line->substr(0, keyword.size()), keyword)) return true;
    }
    return false;
}

}  // namespace vexa

// The lines of a list window: many, short, only ever added at the end or cleared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string_view>
#include <vector>

namespace vexa {

// Takes the text, a byte and a record of 8 bytes a line.
class ListLines {
  public:
    static constexpr std::size_t kMostLines = 1'000'000;
    static constexpr std::size_t kLongestLine = 65'535;  // characters; a longer line is cut

    // False, and nothing is added, when the list is full.
    bool add(std::string_view text);
    // For the few words that close a list: also added to a full one.
    void addLast(std::string_view text);
    void clear();

    std::size_t size() const { return lines_.size(); }
    // A zero byte follows the last character. Valid until the list is cleared.
    std::string_view operator[](std::size_t index) const {
        const Line& line = lines_[index];
        return {blocks_[line.block].get() + line.offset, line.length};
    }
    // Of the longest line, in characters.
    std::size_t longest() const { return longest_; }

  private:
    static constexpr std::size_t kBlockSize = kLongestLine + 1;

    struct Line {
        std::uint32_t block;
        std::uint16_t offset;
        std::uint16_t length;
    };

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t used_ = kBlockSize;  // bytes of the last block
    std::deque<Line> lines_;         // unlike a vector, it has no room to spare
    std::size_t longest_ = 0;
};

}  // namespace vexa

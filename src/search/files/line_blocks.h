// Reads a text file in large blocks of whole lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "base/file.h"

namespace vexa {

// Serves one file after the other with the same memory. What is written to a file meanwhile may be read or not; one
// that becomes shorter ends there.
class LineBlocks {
  public:
    static constexpr std::size_t kBlock = 256 * 1024;
    // A longer line is read in parts.
    static constexpr std::size_t kLongestLine = 16 * 1024 * 1024;
    static constexpr std::size_t kLookedAt = 8 * 1024;  // a byte 0 among the first that many tells a binary file

    enum class State { Reading, Ended, Failed };

    // False when the file cannot be opened.
    bool open(const std::string& path);
    // Reads the next block; false at the end, after an error, and for a binary file at once. The file is closed then.
    bool next();
    State state() const { return state_; }
    // The size of the open file; 0 when there is none.
    std::uint64_t fileSize() { return file_.isOpen() ? file_.size().value_or(0) : 0; }
    // Closes the file before its end.
    void leave() { finish(State::Ended); }

    // The lines of the block. The last of them has a line end unless it is the last of the file or longer than is read
    // at once. The byte at end() may be written for a while, if it gets its value back.
    char* begin() { return buffer_.get(); }
    char* end() { return buffer_.get() + lines_; }

  private:
    bool fill();
    bool finish(State state);
    void grow();

    File file_;
    State state_ = State::Ended;
    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_ = 0;
    std::size_t size_ = 0;   // bytes read into the buffer
    std::size_t lines_ = 0;  // bytes of them that are the block
    bool isFirst_ = true;
    bool atEnd_ = false;
};

}  // namespace vexa

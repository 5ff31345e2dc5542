// Reads numbers and texts of a help file, those parts alone that are asked for.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/file.h"

namespace vexa {

// What cannot be read gives zeros and empty texts, and failed() until the next seek(). All numbers have their lowest
// byte first.
class HelpFileReader {
  public:
    explicit HelpFileReader(const std::string& path);

    bool isOpen() const { return file_.isOpen(); }
    std::uint64_t size() const { return size_; }

    // How many bytes may be read from now on; then reading fails until more are allowed. Parts that overlap, or lead
    // back to themselves, thus cannot keep a reader busy for long.
    void allow(std::uint64_t bytes) { allowed_ = bytes; }

    std::uint64_t position() const { return position_; }
    void seek(std::uint64_t position);
    bool failed() const { return failed_; }

    std::uint8_t number8();
    std::uint16_t number16();
    std::uint32_t number32();
    // The characters before the next byte 0, the first kept ones of them; moves past that byte.
    std::string text(std::size_t kept);
    // The same of a text that ends with this many bytes if no byte 0 comes before.
    std::string textIn(std::size_t bytes);

  private:
    bool fill();

    File file_;
    std::uint64_t size_ = 0;
    std::uint64_t position_ = 0;
    std::uint64_t allowed_ = 0;
    std::uint64_t blockStart_ = 0;
    std::size_t blockSize_ = 0;
    std::array<char, 2048> block_;
    bool failed_ = false;
};

}  // namespace vexa

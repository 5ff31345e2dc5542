#include "quickhelp/help_file_reader.h"

namespace vexa {

HelpFileReader::HelpFileReader(const std::string& path) : file_(path, platform::OpenMode::Read) {
    if (file_.isOpen()) size_ = file_.size().value_or(0);
    allow(size_);
}

void HelpFileReader::seek(std::uint64_t position) {
    position_ = position;
    failed_ = false;
}

// Makes the block hold the present position; false at the end of the file.
bool HelpFileReader::fill() {
    if (position_ >= blockStart_ && position_ - blockStart_ < blockSize_) return true;
    blockSize_ = 0;
    if (position_ >= size_ || !file_.seek(position_)) return false;
    blockStart_ = position_;
    blockSize_ = file_.read(block_.data(), block_.size()).value_or(0);
    return blockSize_ > 0;
}

std::uint8_t HelpFileReader::number8() {
    failed_ = failed_ || allowed_ == 0 || !fill();
    if (failed_) return 0;
    --allowed_;
    return static_cast<std::uint8_t>(block_[static_cast<std::size_t>(position_++ - blockStart_)]);
}

std::uint16_t HelpFileReader::number16() {
    const std::uint16_t low = number8();
    return static_cast<std::uint16_t>(low | number8() << 8);
}

std::uint32_t HelpFileReader::number32() {
    const std::uint32_t low = number16();
    return low | std::uint32_t{number16()} << 16;
}

std::string HelpFileReader::text(std::size_t kept) {
    std::string text;
    for (char c = static_cast<char>(number8()); c != '\0'; c = static_cast<char>(number8())) {
        if (text.size() < kept) text += c;
    }
    return failed_ ? std::string() : text;
}

std::string HelpFileReader::textIn(std::size_t bytes) {
    std::string text;
    for (; bytes > 0; --bytes) {
        const char c = static_cast<char>(number8());
        if (c == '\0') break;
        text += c;
    }
    return text;
}

}  // namespace vexa

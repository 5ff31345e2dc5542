// Reads the little-endian numbers and texts of a help file one after the other. A read past the end gives zeros and is
// remembered (failed), so that a reader may check once after several fields.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vexa::topics {

class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    bool failed() const { return failed_; }
    std::size_t position() const { return position_; }
    std::size_t left() const { return bytes_.size() - position_; }

    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return number(4); }
    std::int16_t i16() { return static_cast<std::int16_t>(number(2)); }
    std::int32_t i32() { return static_cast<std::int32_t>(number(4)); }

    // Numbers that take one unit when they are small, two otherwise; the lowest bit says which.
    int packedUshort() { return static_cast<int>(packed(1)); }
    int packedShort() { return isLong() ? packedWide(2, 16384) : packedWide(1, 64); }
    std::uint32_t packedUlong() { return packed(2); }
    int packedLong() { return isLong() ? packedWide(4, 0x40000000) : packedWide(2, 16384); }

    // The next count bytes, or none where there are fewer.
    std::string_view bytes(std::int64_t count) {
        if (count < 0 || static_cast<std::uint64_t>(count) > left()) {
            failed_ = true;
            return {};
        }
        const std::string_view taken = bytes_.substr(position_, static_cast<std::size_t>(count));
        position_ += taken.size();
        return taken;
    }
    void skip(std::int64_t count) { bytes(count); }

    // The bytes up to a NUL, which is taken too, or up to the end.
    std::string_view text() {
        const std::string_view rest = bytes_.substr(position_);
        const std::string_view taken = rest.substr(0, rest.find('\0'));
        position_ += std::min(taken.size() + 1, rest.size());
        return taken;
    }

  private:
    std::uint32_t number(std::int64_t count) {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char c : bytes(count)) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(c)) << shift;
            shift += 8;
        }
        return value;
    }
    bool isLong() const { return left() > 0 && (bytes_[position_] & 1) != 0; }
    std::uint32_t packed(int unit) { return number(isLong() ? unit * 2 : unit) >> 1; }
    int packedWide(int size, int bias) { return static_cast<int>(number(size) >> 1) - bias; }

    std::string_view bytes_;
    std::size_t position_ = 0;
    bool failed_ = false;
};

// The text of a field of fixed length, up to its first NUL.
inline std::string_view FixedText(std::string_view field) {
    return field.substr(0, field.find('\0'));
}

}  // namespace vexa::topics

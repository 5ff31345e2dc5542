// Fields of a fixed size in a file. A text is filled up with zeros; a number has two bytes, the low one first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexa {

// A text as its field keeps it: it ends before its first zero, and has at most `limit` characters.
std::string LimitedText(std::string_view text, std::size_t limit);

// Takes fields off the front of the bytes; none when fewer bytes are left than the field has.
class FieldReader {
  public:
    explicit FieldReader(std::string_view bytes) : rest_(bytes) {}

    // All `size` bytes of a field.
    std::optional<std::string_view> text(std::size_t size);
    std::optional<char> byte();
    std::optional<std::uint16_t> number();

  private:
    std::string_view rest_;
};

// Writes a field of `size` bytes, which must have room for the text.
void AddText(std::string& bytes, std::string_view text, std::size_t size);
void AddNumber(std::string& bytes, std::size_t number);

}  // namespace vexa

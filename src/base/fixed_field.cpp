#include "base/fixed_field.h"

#include <algorithm>

namespace vexa {

std::string LimitedText(std::string_view text, std::size_t limit) {
    return std::string(text.substr(0, std::min(text.find('\0'), limit)));
}

std::optional<std::string_view> FieldReader::text(std::size_t size) {
    if (rest_.size() < size) return std::nullopt;
    const std::string_view field = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return field;
}

std::optional<char> FieldReader::byte() {
    const auto field = text(1);
    return field ? std::optional(field->front()) : std::nullopt;
}

std::optional<std::uint16_t> FieldReader::number() {
    const auto field = text(2);
    if (!field) return std::nullopt;
    const auto low = static_cast<unsigned char>((*field)[0]);
    const auto high = static_cast<unsigned char>((*field)[1]);
    return static_cast<std::uint16_t>(low | high << 8);
}

void AddText(std::string& bytes, std::string_view text, std::size_t size) {
    bytes.append(text);
    bytes.append(size - text.size(), '\0');
}

void AddNumber(std::string& bytes, std::size_t number) {
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
}

}  // namespace vexa

#include "document/text/columns.h"

namespace vexa {

namespace {

std::int32_t Advance(std::int32_t display, char c, std::int32_t tabSize) {
    return c == '\t' ? display - display % tabSize + tabSize : display + 1;
}

}  // namespace

DisplayColumn ToDisplay(std::string_view text, CharColumn column, std::int32_t tabSize) {
    const auto length = static_cast<std::int32_t>(text.size());
    const std::int32_t inside = std::min(column.value, length);
    std::int32_t display = 0;
    for (const char c : text.substr(0, static_cast<std::size_t>(inside)))
        display = Advance(display, c, tabSize);
    return DisplayColumn(display + column.value - inside);
}

CharColumn ToCharacter(std::string_view text, DisplayColumn column, std::int32_t tabSize) {
    std::int32_t display = 0;
    std::int32_t index = 0;
    for (const char c : text) {
        const std::int32_t next = Advance(display, c, tabSize);
        if (next > column.value) return CharColumn(index);
        display = next;
        ++index;
    }
    return CharColumn(index + column.value - display);
}

CharColumn FirstCharacterFrom(std::string_view text, DisplayColumn column, std::int32_t tabSize) {
    const CharColumn covering = ToCharacter(text, column, tabSize);
    return ToDisplay(text, covering, tabSize) < column ? covering + 1 : covering;
}

}  // namespace vexa

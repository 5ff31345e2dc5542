#include "document/text/columns.h"

#include <cstring>

namespace vexa {

namespace {

std::int32_t NextTabStop(std::int32_t display, std::int32_t tabSize) {
    return display - display % tabSize + tabSize;
}

// The characters before the next tab, of which each takes one column; at most that many.
std::int32_t BeforeTab(std::string_view text, std::int32_t most) {
    constexpr std::size_t kOnes = SIZE_MAX / 255;
    const char* const begin = text.data();
    const char* const end = begin + std::min(text.size(), static_cast<std::size_t>(most));
    const char* p = begin;
    // Of a word without tabs, no byte borrows from its highest bit. Lines may be long, and every key comes by here.
    for (std::size_t word = 0; static_cast<std::size_t>(end - p) >= sizeof word; p += sizeof word) {
        std::memcpy(&word, p, sizeof word);
        word ^= kOnes * '\t';
        if (((word - kOnes) & ~word & (kOnes * 0x80)) != 0) break;
    }
    return static_cast<std::int32_t>(std::find(p, end, '\t') - begin);
}

}  // namespace

DisplayColumn ToDisplay(std::string_view text, CharColumn column, std::int32_t tabSize, ColumnMark from) {
    std::int32_t display = from.display.value;
    std::int32_t left = column - from.character;
    text.remove_prefix(static_cast<std::size_t>(from.character.value));
    while (left > 0 && !text.empty()) {
        const std::int32_t plain = BeforeTab(text, left);
        display += plain;
        left -= plain;
        text.remove_prefix(static_cast<std::size_t>(plain));
        if (left == 0 || text.empty()) break;
        display = NextTabStop(display, tabSize);
        --left;
        text.remove_prefix(1);
    }
    return DisplayColumn(display + left);
}

CharColumn ToCharacter(std::string_view text, DisplayColumn column, std::int32_t tabSize, ColumnMark from) {
    const std::int32_t target = std::max(column.value, 0);
    std::int32_t display = from.display.value;
    std::int32_t index = from.character.value;
    text.remove_prefix(static_cast<std::size_t>(index));
    while (display < target && !text.empty()) {
        const std::int32_t plain = BeforeTab(text, target - display);
        display += plain;
        index += plain;
        text.remove_prefix(static_cast<std::size_t>(plain));
        if (display == target || text.empty()) break;
        const std::int32_t next = NextTabStop(display, tabSize);
        if (next > target) return CharColumn(index);
        display = next;
        ++index;
        text.remove_prefix(1);
    }
    return CharColumn(index + target - display);
}

CharColumn FirstCharacterFrom(std::string_view text, DisplayColumn column, std::int32_t tabSize) {
    const CharColumn covering = ToCharacter(text, column, tabSize);
    return ToDisplay(text, covering, tabSize) < column ? covering + 1 : covering;
}

}  // namespace vexa

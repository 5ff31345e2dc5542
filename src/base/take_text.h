// Takes texts apart from their beginning.
#pragma once

#include <algorithm>
#include <string_view>

namespace vexa {

// Takes what stands before a character, and this one, off a text; all of it where the character is missing.
inline std::string_view TakeUpTo(std::string_view& text, char end) {
    const std::string_view taken = text.substr(0, text.find(end));
    text.remove_prefix(std::min(taken.size() + 1, text.size()));
    return taken;
}

// Takes the first line off a text; its end is LF or CR LF, or that of the text.
inline std::string_view TakeLine(std::string_view& text) {
    std::string_view line = TakeUpTo(text, '\n');
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace vexa

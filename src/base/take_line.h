// Cuts a text into lines.
#pragma once

#include <algorithm>
#include <string_view>

namespace vexa {

// Takes the first line off a text; its end is LF or CR LF, or that of the text.
inline std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace vexa

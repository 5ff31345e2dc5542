// The fonts of a help file, by the numbers that its texts use.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_system.h"

namespace vexa::topics {

enum class FontFamily : std::uint8_t { Any, Modern, Roman, Swiss, Script, Decorative };

struct HelpFont {
    std::string face;  // may be one that systems no longer have: then the family says what to take
    FontFamily family = FontFamily::Swiss;
    int halfPoints = 20;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool doubleUnderline = false;
    bool strikeOut = false;
    bool smallCapitals = false;
    std::optional<Colour> colour;  // none: that of the window's text
    int charset = 1;               // of the system's character sets; 1 is the default, 2 that of symbols
};

// Damaged descriptors end the list; the fonts before them stay.
std::vector<HelpFont> ReadFonts(std::string_view file, const HelpSystem& system);

}  // namespace vexa::topics

// What a help file says about itself in |SYSTEM: its version, title, first topic, windows and macros.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_types.h"

namespace vexa::topics {

// A window that the author has defined; where a field is not given, the viewer chooses. Positions and sizes are in
// thousandths of the screen.
struct HelpWindow {
    std::string type, name, caption;
    std::optional<int> left, top, width, height;
    bool maximized = false;
    bool onTop = false;
    bool heightByContent = false;
    std::optional<Colour> background, fixedBackground;
};

struct HelpSystem {
    int minor = 0;
    int flags = 0;
    std::string title, copyright, citation, contentsFile, indexSeparators;
    std::optional<std::uint32_t> contents;   // TOPICOFFSET of the first topic shown
    std::vector<std::string> configMacros;   // to be run at opening, in this order
    std::vector<HelpWindow> windows;         // by window number
    std::vector<std::uint8_t> faceCharsets;  // by face of |FONT
    int language = 0;

    // Null and -1 where the author has not defined the window.
    const HelpWindow* window(int number) const;
    int windowNamed(std::string_view name) const;

    // The first compiler counted positions in bytes of |TOPIC.
    bool isFirstVersion() const { return minor <= 16; }
};

// None when the version is one that no viewer reads.
std::optional<HelpSystem> ReadHelpSystem(std::string_view file);

}  // namespace vexa::topics

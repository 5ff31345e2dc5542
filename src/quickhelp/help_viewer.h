// Which viewer shows a help file.
#pragma once

#include <cstdint>
#include <string>

#include "base/config_store.h"

namespace vexa {

enum class HelpViewer { System, Own };

// What the choice depends on.
struct HelpViewerFacts {
    std::string setting;                 // as HelpViewerSetting() gives it
    bool isWine = false;                 // the system is Wine
    std::uint64_t systemViewerSize = 0;  // bytes of "winhlp32.exe" in the Windows directory; 0 when there is none
};

// The value of "HelpViewer" in the section "Editor Options": "System" or "Own" decides, whatever the letter case;
// anything else leaves the choice to the editor.
std::string HelpViewerSetting(const ConfigStore& store);

// The system's viewer where it works, else the editor's own. Since Windows Vista the file is a stub that only says that
// there is no help, unless a viewer has been installed in its stead; Wine's ignores the call for a keyword.
HelpViewer ChooseHelpViewer(const HelpViewerFacts& facts);

}  // namespace vexa

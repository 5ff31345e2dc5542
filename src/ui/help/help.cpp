#include "ui/help/help.h"

#include <string>

#include "base/directories.h"
#include "base/platform.h"

namespace vexa {

void ShowHelp(HWND owner, UINT command, DWORD topic) {
    const std::string file = DirectoryOf(platform::ProgramPath()) + "Vexa.hlp";
    WinHelpA(owner, file.c_str(), command, topic);
}

}  // namespace vexa

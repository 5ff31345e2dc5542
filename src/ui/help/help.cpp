#include "ui/help/help.h"

#include <string_view>

#include "ui/help/help_desk.h"

namespace vexa {
namespace {

HelpDesk* helpDesk = nullptr;

}  // namespace

void SetHelpDesk(HelpDesk* desk) {
    helpDesk = desk;
}

void ShowHelp(HWND owner, UINT command, DWORD topic) {
    if (helpDesk) helpDesk->showOwnHelp(owner, command, topic);
}

void CloseHelp(HWND owner) {
    if (helpDesk) helpDesk->close(owner);
}

bool IsInHelpViewer(HWND window) {
    const HWND root = window ? GetAncestor(window, GA_ROOTOWNER) : nullptr;
    char name[32] = "";
    return root && GetClassNameA(root, name, sizeof(name)) > 0 && std::string_view(name) == kHelpWindowClass;
}

}  // namespace vexa

#include "framework/mdi_child.h"

#include "framework/mdi_frame.h"

namespace vexa {

bool MDIchildCL::open(const WindowClass& windowClass, const std::string& title) {
    return create(windowClass, {.title = title.c_str(),
                                .style = WS_CLIPCHILDREN | WS_VISIBLE,
                                .extendedStyle = WS_EX_MDICHILD,
                                .parent = frame_.mdiClient()});
}

LRESULT MDIchildCL::defaultProcedure(const Message& message) {
    return DefMDIChildProcA(window(), message.number, message.wParam, message.lParam);
}

bool MDIchildCL::onMdiActivate(bool active) {
    if (active) frame_.childrenChanged();
    return false;
}

bool MDIchildCL::onContextMenu(std::optional<POINT> screenPosition) {
    if (!screenPosition || IsIconic(window()) || !isOnTitle(*screenPosition)) return false;
    frame_.activate(*this);
    return frame_.showTitleMenu(*screenPosition);
}

bool MDIchildCL::onClose() {
    const bool isRefused = !frame_.takesCommands() || !mayClose();
    if (!isRefused) onClosing();
    return isRefused;
}

void MDIchildCL::onGone() {
    frame_.forget(*this);
}

}  // namespace vexa

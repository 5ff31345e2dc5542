#include "framework/frame.h"

namespace vexa {

void AppFrameCL::setMenu(MenuHandle menu) {
    // A window owns its menu.
    if (SetMenu(window(), menu.get())) static_cast<void>(menu.release());
}

bool AppFrameCL::translate(MSG& message) {
    if (!accelerators_) return false;
    isTranslating_ = true;
    const bool isCommandKey = TranslateAcceleratorA(window(), accelerators_.get(), &message) != 0;
    isTranslating_ = false;
    // The system must see a key pressed with Alt, or it takes the release of Alt for a wish to use the menu.
    const bool isAltKey = message.message == WM_SYSKEYDOWN && (HIWORD(message.lParam) & KF_ALTDOWN);
    if (isCommandKey && isAltKey) DefWindowProcA(window(), WM_SYSKEYDOWN, message.wParam, message.lParam);
    return isCommandKey;
}

bool AppFrameCL::onCommand(WORD id, bool fromKey) {
    isTranslating_ = false;
    if (!takesCommands()) return true;
    if (!itemState(id)) return false;
    runCommand(id, fromKey);
    return true;
}

// The system drops the key of a greyed item without a word. The command itself must hear of the key, because it tells
// the user why it does not run; so nothing is greyed while a key is looked up, only when the menu really opens.
bool AppFrameCL::onMenuPopup(HMENU menu, bool isSystemMenu) {
    if (isSystemMenu) return false;
    RefreshMenu(menu, [this](WORD id) {
        auto state = itemState(id);
        if (state && isTranslating_) state->enabled = true;
        return state;
    });
    return true;
}

bool AppFrameCL::onMenuSelect(WORD id, UINT flags) {
    const bool isCommand = !(flags & (MF_POPUP | MF_SYSMENU | MF_SEPARATOR)) && itemState(id);
    showItemHelp(isCommand ? id : WORD{0});
    return false;
}

bool AppFrameCL::onMenuClosed() {
    showItemHelp(std::nullopt);
    return false;
}

// F1 on anything else is a key like others. An open menu would keep the keyboard from the window with the answer.
bool AppFrameCL::onHelp(const HELPINFO& request) {
    const auto id = static_cast<WORD>(request.iCtrlId);
    if (request.iContextType != HELPINFO_MENUITEM || !itemState(id)) return false;
    SendMessageA(window(), WM_CANCELMODE, 0, 0);
    explainItem(id);
    return true;
}

bool AppFrameCL::onSize(UINT kind) {
    if (kind != SIZE_MINIMIZED) layOut();
    return true;
}

// A frame that came to the front behind a dialog has kept the keyboard, which belongs to what is inside the frame.
void AppFrameCL::onEnabled() {
    if (GetActiveWindow() == window() && (!GetFocus() || GetFocus() == window()))
        SendMessageA(window(), WM_SETFOCUS, 0, 0);
    onFree();
}

bool AppFrameCL::onClose() {
    if (mayLeave()) destroy();
    return true;
}

bool AppFrameCL::onQueryEndSession(bool& agreed) {
    agreed = mayLeave();
    return true;
}

void AppFrameCL::onDestroy() {
    PostQuitMessage(0);
}

bool AppFrameCL::onDpiChanged(const RECT& suggested) {
    place(suggested);
    return true;
}

}  // namespace vexa

#include "framework/message_box.h"

namespace vexa {

int ShowBox(HWND owner, const std::string& text, const std::string& caption, UINT buttons) {
    MessageBeep(MB_ICONEXCLAMATION);
    const int answer = MessageBoxA(owner, text.c_str(), caption.c_str(), buttons | MB_ICONEXCLAMATION);
    return answer ? answer : IDCANCEL;
}

void ShowAboutBox(HWND owner, const std::string& text, const std::string& caption, int icon) {
    MSGBOXPARAMSA box{};
    box.cbSize = sizeof(box);
    box.hwndOwner = owner;
    box.hInstance = GetModuleHandleA(nullptr);
    box.lpszText = text.c_str();
    box.lpszCaption = caption.c_str();
    box.dwStyle = MB_OK | MB_USERICON;
    box.lpszIcon = MAKEINTRESOURCEA(icon);
    MessageBoxIndirectA(&box);
}

}  // namespace vexa

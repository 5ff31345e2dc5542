#include "framework/message_box.h"

#include <utility>

#include "framework/centred.h"
#include "framework/windows_behind.h"

namespace vexa {
namespace {

// The system puts its boxes into the middle of the screen. While this lives, one that comes up for the owner is put
// over the owner before it is seen. The hook knows no objects; one box comes up at a time.
class BoxOverOwner {
  public:
    explicit BoxOverOwner(HWND owner) {
        g_owner = owner;
        hook_ = owner ? SetWindowsHookExA(WH_CBT, &BoxOverOwner::OnEvent, nullptr, GetCurrentThreadId()) : nullptr;
    }
    ~BoxOverOwner() {
        if (hook_) UnhookWindowsHookEx(hook_);
    }
    BoxOverOwner(const BoxOverOwner&) = delete;
    BoxOverOwner& operator=(const BoxOverOwner&) = delete;

  private:
    static LRESULT CALLBACK OnEvent(int code, WPARAM wParam, LPARAM lParam) {
        const auto box = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && g_owner && GetWindow(box, GW_OWNER) == g_owner) {
            putOver(std::exchange(g_owner, nullptr), box);
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static void putOver(HWND owner, HWND box) {
        RECT ownerArea{};
        RECT boxArea{};
        if (IsIconic(owner) || !GetWindowRect(owner, &ownerArea) || !GetWindowRect(box, &boxArea)) return;
        const POINT corner = CentredOver(ownerArea, boxArea);
        SetWindowPos(box, nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    inline static HWND g_owner = nullptr;
    HHOOK hook_ = nullptr;
};

}  // namespace

int ShowBox(HWND owner, const std::string& text, const std::string& caption, UINT buttons) {
    MessageBeep(MB_ICONEXCLAMATION);
    const WindowsBehind behind(owner);
    const BoxOverOwner over(owner);
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
    const WindowsBehind behind(owner);
    const BoxOverOwner over(owner);
    MessageBoxIndirectA(&box);
}

}  // namespace vexa

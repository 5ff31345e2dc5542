// Which message goes to which handler of a window, and how its parameters are read.
#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <windowsx.h>

#include <algorithm>
#include <iterator>

#include "framework/dpi.h"
#include "framework/window.h"

namespace vexa {
namespace {

constexpr WORD kFromAccelerator = 1;              // what tells a command's key from its menu item
constexpr UINT kHorizontalWheelMessage = 0x020E;  // younger than the headers this is built for

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

KeyMessage ReadKey(const Message& message) {
    KeyMessage key;
    key.key = static_cast<UINT>(message.wParam);
    key.repeat = LOWORD(message.lParam);
    key.extended = HIWORD(message.lParam) & KF_EXTENDED;
    key.shift = IsDown(VK_SHIFT);
    key.control = IsDown(VK_CONTROL);
    key.alt = IsDown(VK_MENU);
    return key;
}

POINT ReadPosition(const Message& message) {
    return {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
}

MouseButtonMessage ReadButton(const Message& message) {
    return {ReadPosition(message), (message.wParam & MK_SHIFT) != 0, IsDown(VK_MENU),
            message.number == WM_LBUTTONDBLCLK};
}

WheelMessage ReadWheel(const Message& message, WheelAxis axis) {
    const WORD keys = LOWORD(message.wParam);
    return {axis, static_cast<short>(HIWORD(message.wParam)), (keys & MK_SHIFT) != 0, (keys & MK_CONTROL) != 0};
}

// The keyboard's menu key has no position: both coordinates are -1.
std::optional<POINT> ReadMenuPosition(const Message& message) {
    if (message.lParam == -1) return std::nullopt;
    return ReadPosition(message);
}

// The names of files that the user has dropped, each at most 255 characters; the system's own copy is freed.
std::vector<std::string> TakeDroppedNames(HDROP drop) {
    std::vector<std::string> names;
    const UINT count = DragQueryFileA(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        char name[256];
        if (DragQueryFileA(drop, i, name, sizeof(name)) > 0) names.emplace_back(name);
    }
    DragFinish(drop);
    return names;
}

// What a message points to. Another program can send one with any number in place of the pointer; none then.
void* Pointed(const Message& message, std::size_t size) {
    const auto pointer = reinterpret_cast<void*>(message.lParam);
    return IsBadWritePtr(pointer, size) ? nullptr : pointer;
}

bool Answer(Message& message, LRESULT result) {
    message.result = result;
    return true;
}

}  // namespace

struct MessageRoutes {
    struct Route {
        UINT number;
        bool (*deliver)(WindowCL& window, Message& message);
    };

    // True when the handler has dealt with the message; its answer to the system is 0 unless the row says otherwise.
    static const Route kRoutes[];
};

const MessageRoutes::Route MessageRoutes::kRoutes[] = {
    {WM_CREATE, [](WindowCL& w, Message& m) { return !w.onCreate() && Answer(m, -1); }},
    {WM_DESTROY, [](WindowCL& w, Message&) { return w.onDestroy(), false; }},
    {WM_CLOSE, [](WindowCL& w, Message&) { return w.onClose(); }},
    {WM_ENABLE, [](WindowCL& w, Message& m) { return m.wParam && (w.onEnabled(), true); }},
    {WM_QUERYENDSESSION,
     [](WindowCL& w, Message& m) {
         bool agreed = true;
         return w.onQueryEndSession(agreed) && Answer(m, agreed);
     }},
    {WM_ENDSESSION,
     [](WindowCL& w, Message& m) {
         w.onEndSession(m.wParam != 0);
         return false;
     }},
    {WM_SIZE, [](WindowCL& w, Message& m) { return w.onSize(static_cast<UINT>(m.wParam)); }},
    {WM_MOVE, [](WindowCL& w, Message&) { return w.onMove(), false; }},
    {kDpiChangedMessage,
     [](WindowCL& w, Message& m) {
         const auto* const area = static_cast<const RECT*>(Pointed(m, sizeof(RECT)));
         return area && w.onDpiChanged(*area);
     }},
    {WM_SETTINGCHANGE, [](WindowCL& w, Message&) { return w.onSettingChange(), false; }},
    {WM_PAINT, [](WindowCL& w, Message&) { return w.paint(); }},
    {WM_ERASEBKGND,
     [](WindowCL& w, Message& m) { return w.onEraseBackground(reinterpret_cast<HDC>(m.wParam)) && Answer(m, 1); }},
    {WM_SETTEXT,
     [](WindowCL& w, Message& m) {
         m.result = w.defaultProcedure(m);
         w.onTextChanged();
         return true;
     }},
    {WM_SETCURSOR, [](WindowCL& w, Message& m) { return w.onSetCursor(LOWORD(m.lParam)) && Answer(m, 1); }},
    {WM_SETFOCUS, [](WindowCL& w, Message&) { return w.onFocusGained(); }},
    {WM_KILLFOCUS, [](WindowCL& w, Message&) { return w.onFocusLost(); }},
    {WM_MDIACTIVATE,
     [](WindowCL& w, Message& m) { return w.onMdiActivate(reinterpret_cast<HWND>(m.lParam) == w.window()); }},
    {WM_KEYDOWN, [](WindowCL& w, Message& m) { return w.onKey(ReadKey(m)); }},
    {WM_SYSKEYDOWN, [](WindowCL& w, Message& m) { return w.onKey(ReadKey(m)); }},
    {WM_SYSKEYUP, [](WindowCL& w, Message& m) { return w.onSystemKeyUp(static_cast<UINT>(m.wParam)); }},
    {WM_CHAR,
     [](WindowCL& w, Message& m) { return w.onCharacter(static_cast<unsigned char>(m.wParam), LOWORD(m.lParam)); }},
    {WM_SYSCHAR, [](WindowCL& w, Message& m) { return w.onSystemCharacter(static_cast<unsigned char>(m.wParam)); }},
    {WM_LBUTTONDOWN, [](WindowCL& w, Message& m) { return w.onMousePress(ReadButton(m)); }},
    {WM_LBUTTONDBLCLK, [](WindowCL& w, Message& m) { return w.onMousePress(ReadButton(m)); }},
    {WM_MOUSEMOVE, [](WindowCL& w, Message& m) { return w.onMouseMove(ReadPosition(m)); }},
    {WM_LBUTTONUP,
     [](WindowCL& w, Message& m) {
         // A quick mouse is let go where no move has told of.
         w.onMouseMove(ReadPosition(m));
         return w.onMouseRelease(ReadPosition(m));
     }},
    {WM_CAPTURECHANGED, [](WindowCL& w, Message&) { return w.onCaptureLost(); }},
    {WM_MOUSEWHEEL, [](WindowCL& w, Message& m) { return w.onWheel(ReadWheel(m, WheelAxis::Vertical)); }},
    {kHorizontalWheelMessage, [](WindowCL& w, Message& m) { return w.onWheel(ReadWheel(m, WheelAxis::Horizontal)); }},
    {WM_CONTEXTMENU, [](WindowCL& w, Message& m) { return w.onContextMenu(ReadMenuPosition(m)); }},
    {WM_VSCROLL, [](WindowCL& w, Message& m) { return w.onScroll(SB_VERT, LOWORD(m.wParam)); }},
    {WM_HSCROLL, [](WindowCL& w, Message& m) { return w.onScroll(SB_HORZ, LOWORD(m.wParam)); }},
    {WM_TIMER, [](WindowCL& w, Message& m) { return w.onTimer(m.wParam); }},
    {WM_COMMAND,
     [](WindowCL& w, Message& m) { return w.onCommand(LOWORD(m.wParam), HIWORD(m.wParam) == kFromAccelerator); }},
    {WM_NOTIFY,
     [](WindowCL& w, Message& m) {
         auto* const notice = static_cast<NMHDR*>(Pointed(m, sizeof(TOOLTIPTEXTA)));
         return notice && w.onNotify(*notice);
     }},
    {WM_DROPFILES,
     [](WindowCL& w, Message& m) { return w.onDropFiles(TakeDroppedNames(reinterpret_cast<HDROP>(m.wParam))); }},
    {WM_INITMENUPOPUP,
     [](WindowCL& w, Message& m) { return w.onMenuPopup(reinterpret_cast<HMENU>(m.wParam), HIWORD(m.lParam) != 0); }},
    {WM_MENUSELECT,
     [](WindowCL& w, Message& m) {
         const bool isClosing = HIWORD(m.wParam) == 0xFFFF && m.lParam == 0;
         return isClosing ? w.onMenuClosed() : w.onMenuSelect(LOWORD(m.wParam), HIWORD(m.wParam));
     }},
    {WM_HELP,
     [](WindowCL& w, Message& m) {
         const auto* const help = static_cast<const HELPINFO*>(Pointed(m, sizeof(HELPINFO)));
         return help && w.onHelp(*help);
     }},
};

bool WindowCL::route(Message& message) {
    const auto* found = std::ranges::find(MessageRoutes::kRoutes, message.number, &MessageRoutes::Route::number);
    return found != std::end(MessageRoutes::kRoutes) ? found->deliver(*this, message) : onOther(message);
}

}  // namespace vexa

#include "framework/window.h"

#include <utility>

namespace vexa {
namespace {

HINSTANCE Program() {
    return GetModuleHandleA(nullptr);
}

// Where the object of a window that is being made stands depends on who makes it: the MDI client wraps its children's.
WindowCL* ObjectOf(const CREATESTRUCTA& creation) {
    if (!(creation.dwExStyle & WS_EX_MDICHILD)) return static_cast<WindowCL*>(creation.lpCreateParams);
    const auto* child = static_cast<const MDICREATESTRUCTA*>(creation.lpCreateParams);
    return reinterpret_cast<WindowCL*>(child->lParam);
}

}  // namespace

WindowCL::~WindowCL() {
    if (!window_) return;
    SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
}

bool WindowCL::Register(const WindowClass& windowClass) {
    WNDCLASSA known;
    if (GetClassInfoA(Program(), windowClass.name, &known)) return true;
    WNDCLASSA made{};
    made.style = CS_DBLCLKS;
    made.lpfnWndProc = &WindowCL::Procedure;
    made.hInstance = Program();
    made.hCursor = LoadCursorA(nullptr, windowClass.cursor ? windowClass.cursor : IDC_ARROW);
    made.lpszClassName = windowClass.name;
    if (windowClass.icon) made.hIcon = LoadIconA(Program(), MAKEINTRESOURCEA(windowClass.icon));
    if (windowClass.background >= 0) made.hbrBackground = GetSysColorBrush(windowClass.background);
    return RegisterClassA(&made) != 0;
}

bool WindowCL::create(const WindowClass& windowClass, const WindowShape& shape) {
    if (!Register(windowClass)) return false;
    const RECT& area = shape.area;
    const bool isMdiChild = shape.extendedStyle & WS_EX_MDICHILD;
    if (isMdiChild) {
        return CreateMDIWindowA(windowClass.name, shape.title, shape.style, area.left, area.top, area.right,
                                area.bottom, shape.parent, Program(), reinterpret_cast<LPARAM>(this)) != nullptr;
    }
    return CreateWindowExA(shape.extendedStyle, windowClass.name, shape.title, shape.style, area.left, area.top,
                           area.right, area.bottom, shape.parent, nullptr, Program(), this) != nullptr;
}

void WindowCL::destroy() {
    if (window_) DestroyWindow(window_);
}

WindowCL* WindowCL::Attach(HWND window, UINT number, LPARAM lParam) {
    auto* object = reinterpret_cast<WindowCL*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    // Of those for a window that has its object another program is the sender.
    if (number != WM_NCCREATE || object) return object;
    object = ObjectOf(*reinterpret_cast<const CREATESTRUCTA*>(lParam));
    object->window_ = window;
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
    return object;
}

LRESULT CALLBACK WindowCL::Procedure(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept {
    WindowCL* object = Attach(window, number, lParam);
    if (!object) return DefWindowProcA(window, number, wParam, lParam);
    return object->receive({number, wParam, lParam});
}

// The object may only go when none of its handlers is running: a window can be closed from inside any of them.
LRESULT WindowCL::receive(Message message) noexcept {
    ++depth_;
    try {
        if (!route(message)) message.result = defaultProcedure(message);
    } catch (...) {
        recover(message);
        message.result = DefWindowProcA(window_, message.number, message.wParam, message.lParam);
    }
    if (message.number == WM_NCDESTROY) {
        SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
        window_ = nullptr;
        isGone_ = true;
    }
    if (--depth_ == 0 && std::exchange(isGone_, false)) onGone();
    return message.result;
}

void WindowCL::recover(const Message& message) noexcept {
    OutputDebugStringA("A window's handler failed.");
    try {
        if (message.number != WM_PAINT) onFailed();
    } catch (...) {
        OutputDebugStringA("A window cannot show what has been done.");
    }
}

LRESULT WindowCL::defaultProcedure(const Message& message) {
    return DefWindowProcA(window_, message.number, message.wParam, message.lParam);
}

bool WindowCL::paint() {
    struct Painting {
        explicit Painting(HWND painted) : window(painted) { BeginPaint(window, &details); }
        ~Painting() { EndPaint(window, &details); }
        HWND window;
        PAINTSTRUCT details{};
    };
    const Painting painting(window_);
    return onPaint(painting.details.hdc, painting.details.rcPaint);
}

std::string WindowCL::text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window_)), '\0');
    const int length = GetWindowTextA(window_, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void WindowCL::setText(const std::string& newText) {
    if (window_ && text() != newText) SetWindowTextA(window_, newText.c_str());
}

void WindowCL::show(bool visible) {
    ShowWindow(window_, visible ? SW_SHOW : SW_HIDE);
}

void WindowCL::place(const RECT& area) {
    MoveWindow(window_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

RECT WindowCL::clientArea() const {
    RECT area{};
    GetClientRect(window_, &area);
    return area;
}

bool WindowCL::isOnTitle(POINT screenPosition) const {
    return SendMessageA(window_, WM_NCHITTEST, 0, MAKELPARAM(screenPosition.x, screenPosition.y)) == HTCAPTION;
}

}  // namespace vexa

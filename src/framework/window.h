// A window as an object: its messages arrive at named handlers.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace vexa {

struct Message {
    UINT number = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT result = 0;
};

// What all windows of a class share. The names live as long as the program.
struct WindowClass {
    const char* name = nullptr;
    const char* cursor = nullptr;  // a system cursor; the arrow without one
    int background = -1;           // a system colour; the window paints all of itself without one
    int icon = 0;                  // resource number; none for 0
};

struct WindowShape {
    const char* title = "";
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT area = {CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT};  // left, top, width, height
    HWND parent = nullptr;
};

// A key that went down.
struct KeyMessage {
    UINT key = 0;  // virtual-key code
    UINT repeat = 1;
    bool extended = false;  // one of the keys that the numeric keypad has a twin of
    bool shift = false;
    bool control = false;
    bool alt = false;
};

// A mouse button that went down, in pixels of the client area.
struct MouseButtonMessage {
    POINT position = {};
    bool shift = false;
    bool alt = false;
    bool isDouble = false;  // the second press of a double click
};

enum class WheelAxis { Vertical, Horizontal };

struct WheelMessage {
    WheelAxis axis = WheelAxis::Vertical;
    int delta = 0;  // 120 a notch; above 0 away from the user or to the right
    bool shift = false;
    bool control = false;
};

// Each handler is told of one message and returns true when it has dealt with it; otherwise the system's own treatment
// follows. An exception in a handler is reported to the debugger and goes no further.
//
// The object may outlive its window and the window may be closed by the user first: onGone is the last call that an
// object gets for its window, and in it the object may be destroyed.
class WindowCL {
  public:
    WindowCL() = default;
    virtual ~WindowCL();
    WindowCL(const WindowCL&) = delete;
    WindowCL& operator=(const WindowCL&) = delete;

    HWND window() const { return window_; }
    std::string text() const;
    // Does nothing when the window already has that text.
    void setText(const std::string& text);
    void show(bool visible);
    // In the parent's client area, in pixels.
    void place(const RECT& area);
    RECT clientArea() const;
    // Whether a point of the screen is on the window's title.
    bool isOnTitle(POINT screenPosition) const;

  protected:
    // False when the system refuses to make the window.
    bool create(const WindowClass& windowClass, const WindowShape& shape);
    void destroy();
    // Calls the system's own treatment of a message.
    virtual LRESULT defaultProcedure(const Message& message);

    // ---- handlers ----

    virtual bool onCreate() { return true; }  // false: the window is not made after all
    virtual void onDestroy() {}
    virtual void onGone() {}
    virtual bool onClose() { return false; }
    virtual void onEnabled() {}  // after it was not
    virtual bool onQueryEndSession(bool& /*agreed*/) { return false; }
    virtual void onEndSession(bool /*ends*/) {}  // false: another program has refused
    virtual bool onSize(UINT /*kind*/) { return false; }
    virtual void onMove() {}
    virtual bool onDpiChanged(const RECT& /*suggested*/) { return false; }
    virtual void onSettingChange() {}
    virtual bool onPaint(HDC /*dc*/, const RECT& /*update*/) { return false; }
    virtual bool onEraseBackground(HDC /*dc*/) { return false; }
    virtual void onTextChanged() {}
    virtual bool onSetCursor(UINT /*hitTest*/) { return false; }

    virtual bool onFocusGained() { return false; }
    virtual bool onFocusLost() { return false; }
    virtual bool onMdiActivate(bool /*active*/) { return false; }
    virtual bool onKey(const KeyMessage& /*key*/) { return false; }
    virtual bool onCharacter(unsigned char /*character*/, UINT /*repeat*/) { return false; }
    virtual bool onSystemKeyUp(UINT /*key*/) { return false; }
    virtual bool onSystemCharacter(unsigned char /*character*/) { return false; }

    virtual bool onMousePress(const MouseButtonMessage& /*press*/) { return false; }
    virtual bool onMouseMove(POINT /*position*/) { return false; }
    // onMouseMove() has had the same position.
    virtual bool onMouseRelease(POINT /*position*/) { return false; }
    virtual bool onCaptureLost() { return false; }
    virtual bool onWheel(const WheelMessage& /*turn*/) { return false; }
    virtual bool onContextMenu(std::optional<POINT> /*screenPosition*/) { return false; }
    virtual bool onScroll(int /*bar*/, UINT /*request*/) { return false; }
    virtual bool onTimer(UINT_PTR /*timer*/) { return false; }

    virtual bool onCommand(WORD /*id*/, bool /*fromKey*/) { return false; }
    virtual bool onNotify(NMHDR& /*notice*/) { return false; }
    virtual bool onDropFiles(const std::vector<std::string>& /*names*/) { return false; }
    virtual bool onMenuPopup(HMENU /*menu*/, bool /*isSystemMenu*/) { return false; }
    virtual bool onMenuSelect(WORD /*id*/, UINT /*flags*/) { return false; }
    virtual bool onMenuClosed() { return false; }
    virtual bool onHelp(const HELPINFO& /*request*/) { return false; }  // F1

    // A handler has failed, most likely because memory has run out: what the window shows may be behind what has been
    // done. Not for painting, which would only be asked for again.
    virtual void onFailed() {}

    // A message that has no handler of its own, such as one whose number is only known at run time.
    virtual bool onOther(Message& /*message*/) { return false; }

  private:
    friend struct MessageRoutes;  // the table of messages and the handlers they go to

    static LRESULT CALLBACK Procedure(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept;
    static WindowCL* Attach(HWND window, UINT number, LPARAM lParam);
    static bool Register(const WindowClass& windowClass);
    LRESULT receive(Message message) noexcept;
    bool route(Message& message);
    void recover(const Message& message) noexcept;
    bool paint();

    HWND window_ = nullptr;
    int depth_ = 0;        // calls of the procedure that have not returned
    bool isGone_ = false;  // the window has seen its last message
};

}  // namespace vexa
